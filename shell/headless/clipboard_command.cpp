// SPDX-License-Identifier: MIT
#include "shell/headless/clipboard_command.h"

#include "powerbuttons/circular_check.h"

#include <QStringList>

namespace tolvo {

namespace {

/// The number of the button that is meant; 0 for none.
int numberOf(const CPowerButtonCollection &buttons, const QString &meant) {
    bool isNumber = false;
    const int number = meant.toInt(&isNumber);
    if (isNumber && buttons.Item(number))
        return number;
    for (int candidate = 1; candidate <= CPowerButtonCollection::buttonCount; ++candidate) {
        const auto button = buttons.Item(candidate);
        if (button && button->isDefined() && button->Name.compare(meant, Qt::CaseInsensitive) == 0)
            return candidate;
    }
    return 0;
}

/// A name of the catalogue without the dots that announce a dialog.
QString plainName(QString name) {
    while (name.endsWith(u'.'))
        name.chop(1);
    return name;
}

QString allTexts(const std::vector<Box> &boxes) {
    QStringList texts;
    for (const Box &box : boxes)
        texts += box.text;
    return texts.join(QStringLiteral("\r\n"));
}

} // namespace

ClipboardCommand::ClipboardCommand(const HeadlessWorld &world, const QString &button, const QString &step)
    : m_headless(world.store, world.catalogue, world.extensions, m_boxes, m_windows, world.dataFolder,
                 MemoryTextBox::unlimited) {
    m_headless.session.loadPowerButtons();
    if (!button.isEmpty()) {
        chooseButton(world.catalogue, button);
    } else {
        m_action = actionOf(world.catalogue, step);
        m_name = plainName(m_action->Tool()->Name());
    }
    refuseWindows(*m_action, m_headless.oPowerButtons);
}

void ClipboardCommand::chooseButton(const Catalogue &catalogue, const QString &button) {
    const int number = numberOf(m_headless.oPowerButtons, button);
    if (number == 0)
        throw BadRequest(
            QStringLiteral("there is no PowerButton \"%1\"; a number from 1 to %2 or a name is meant")
                .arg(button)
                .arg(CPowerButtonCollection::buttonCount));
    if (m_headless.oPowerButtons.Item(number)->Count() == 0)
        throw BadRequest(QStringLiteral("there are no actions defined for PowerButton %1").arg(number));
    m_action = actionOf(catalogue, powerButtonToken + QStringLiteral(":PowerButton=%1").arg(number));
    m_name = m_headless.oPowerButtons.Item(number)->Name;
}

CommandOutcome ClipboardCommand::run(Clipboard &clipboard) {
    const std::optional<QString> text = clipboard.takeText();
    if (!text)
        return {.message = QStringLiteral("The program that owns the clipboard doesn't answer")};
    if (text->isEmpty())
        return {.message = QStringLiteral("There is no text on the clipboard")};
    frmMain &session = m_headless.session;
    m_headless.clipboard.text = *text;
    session.takeText(*text, false);
    session.beginWithText();
    session.runActions({m_action}, [&] { session.bRightButton = false; });

    const QString said = allTexts(m_boxes.shown);
    if (hasWarning(m_boxes.shown) || session.warnings() > 0)
        return {.message = said.isEmpty() ? session.labStatus() : said};
    QString result = session.txtCurrent().Text();
    if (result == *text)
        result = m_headless.clipboard.text;
    const QString happened = said.isEmpty() ? session.labStatus() : said;
    if (result == *text)
        return {.done = true, .message = said.isEmpty() ? QStringLiteral("Nothing to change") : said};
    clipboard.writeText(result);
    return {.done = true, .message = happened, .before = text};
}

} // namespace tolvo
