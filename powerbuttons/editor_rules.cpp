// SPDX-License-Identifier: MIT
#include "powerbuttons/editor_rules.h"

#include "base/strings.h"
#include "powerbuttons/circular_check.h"
#include "powerbuttons/icon_geometry.h"

namespace tolvo {

namespace {

bool runsPowerButton(const CAction &action) {
    return action.Tool() && action.Tool()->Token() == powerButtonToken;
}

bool asks(MessageBoxes &boxes, const QString &question) {
    return boxes.show({question, BoxIcon::Question, {}, BoxButtons::YesNo}) == BoxAnswer::Yes;
}

} // namespace

EditorRules::EditorRules(CPowerButtonCollection &buttons, CPowerButtonMethods &methods,
                         const Catalogue &tools, MessageBoxes &boxes, ActionSettings &settings)
    : m_buttons(buttons), m_methods(methods), m_tools(tools), m_boxes(boxes), m_settings(settings) {
}

void EditorRules::init(int index) {
    m_number = index + 1;
    m_button = m_buttons.Item(m_number);
    if (!m_button) {
        m_button = std::make_shared<CPowerButton>();
        m_buttons.Add(m_button, m_number);
    }
    if (m_button->Count() == 0)
        m_button->Add(std::make_shared<CAction>());
    m_undo.clear();
    moveTo(1);
}

QString EditorRules::caption() const {
    return QStringLiteral("Edit PowerButton ") + QString::number(m_number);
}

EditorRules::Form EditorRules::form() const {
    const CAction &action = current();
    Form form;
    form.frameCaption = FillTemplate(QStringLiteral(" Action %0 of %1"),
                                     {QString::number(m_position), QString::number(m_button->Count())});
    form.details = action.Details();
    form.option = m_option;
    form.leftVisible = m_position > 1;
    form.rightVisible = m_position < m_button->Count();
    form.deleteVisible = m_button->Count() > 1;
    if (action.Tool()) {
        form.toolName = action.Tool()->Name();
        form.toolTip = action.Tool()->Tooltip();
        form.customEnabled = action.Tool()->gotDialog();
        form.optionsEnabled = form.customEnabled && !runsPowerButton(action);
    }
    form.examplesVisible = !m_button->isDefined() && m_button->Count() == 1 && !action.Tool();
    return form;
}

void EditorRules::moveTo(int position) {
    m_position = position;
    m_option = runsPowerButton(current()) ? SettingsFrom::Custom : current().DlgOption();
}

void EditorRules::keep() {
    current().setDlgOption(m_option);
}

void EditorRules::chooseTool(const QString &token) {
    const ToolPtr tool = m_tools.tool(token);
    if (!tool || tool == current().Tool())
        return;
    if (current().Tool()) {
        if (!asks(m_boxes,
                  FillTemplate(QStringLiteral("Replace '%0' with '%1' in Action %2?"),
                               {current().Tool()->Name(), tool->Name(), QString::number(m_position)})))
            return;
        noteForUndo();
        current().setDetails({});
    } else {
        noteForUndo();
    }
    current().setTool(tool);
    if (runsPowerButton(current()))
        m_option = SettingsFrom::Custom;
}

void EditorRules::chooseOption(SettingsFrom option) {
    noteForUndo();
    m_option = option;
}

void EditorRules::chooseSettings() {
    if (!current().Tool())
        return;
    const auto settings = m_settings.getSettings(current().Tool()->Token(), current().Details());
    if (!settings)
        return;
    noteForUndo();
    current().setDetails(*settings);
    m_option = SettingsFrom::Custom;
}

bool EditorRules::validate() {
    const CAction &action = current();
    if (!action.Tool()) {
        say(QStringLiteral("Please select a tool from the toolbox on the left"));
        return false;
    }
    if (action.Tool()->gotDialog() && m_option == SettingsFrom::Custom && action.Details().isEmpty()) {
        say(QStringLiteral("Please choose your custom settings"));
        return false;
    }
    return validateTarget();
}

bool EditorRules::validateTarget() {
    const std::optional<int> target = targetOf(current());
    if (!target)
        return true;
    const auto way = findCircle(m_buttons, *target, m_number);
    if (way)
        m_boxes.show({circleMessage(*way), BoxIcon::Exclamation, QStringLiteral("Circular reference!")});
    return !way;
}

bool EditorRules::goLeft() {
    if (m_position <= 1 || !validate())
        return false;
    keep();
    moveTo(m_position - 1);
    return true;
}

bool EditorRules::goRight() {
    if (m_position >= m_button->Count() || !validate())
        return false;
    keep();
    moveTo(m_position + 1);
    return true;
}

bool EditorRules::mayAdd() {
    if (!validate())
        return false;
    keep();
    return true;
}

void EditorRules::addBefore() {
    noteForUndo();
    m_button->Add(std::make_shared<CAction>(), {}, m_position);
    moveTo(m_position);
}

void EditorRules::addAfter() {
    noteForUndo();
    m_button->Add(std::make_shared<CAction>(), {}, {}, m_position);
    moveTo(m_position + 1);
}

void EditorRules::addAtEnd() {
    noteForUndo();
    m_button->Add(std::make_shared<CAction>());
    moveTo(m_button->Count());
}

void EditorRules::deleteAction() {
    if (current().Tool() && !asks(m_boxes, FillTemplate(QStringLiteral("Do you want to delete action '%0'?"),
                                                        {current().Tool()->Name()})))
        return;
    removeStep();
}

EditorRules::Saved EditorRules::save(const QString &name) {
    if (!validate())
        return Saved::NoAction;
    if (name == CPowerButton::undefinedName() || trimBlanks(name).isEmpty()) {
        say(QStringLiteral("Please enter a name for this button"));
        return Saved::NoName;
    }
    keep();
    m_button->Name = name;
    m_methods.SavePBSettings(*m_button, m_number);
    return Saved::Yes;
}

void EditorRules::cancel() {
    m_button->Clear();
    m_methods.ReadPBSettings(*m_button, m_number);
}

bool EditorRules::destroy() {
    if (!asks(m_boxes,
              QStringLiteral("You are about to delete the entire definition of this PowerButton.\r\n\r\n"
                             "This action cannot be undone.")))
        return false;
    m_button = std::make_shared<CPowerButton>();
    m_methods.SavePBSettings(*m_button, m_number);
    m_buttons.Add(m_button, m_number);
    return true;
}

void EditorRules::loadExample(const CPowerButton &example) {
    noteForUndo();
    m_button->Clear();
    for (int position = 1; position <= example.Count(); ++position)
        m_button->Add(std::make_shared<CAction>(*example.Item(position)));
    setIcon(*m_button, iconOf(example));
    moveTo(1);
}

bool mayChoosePowerButton(const CPowerButtonCollection &buttons, int number, int own) {
    const auto button = buttons.Item(number);
    return button && number != own && !button->Name.isEmpty() && button->isDefined();
}

} // namespace tolvo
