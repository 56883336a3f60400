// SPDX-License-Identifier: MIT
#include "powerbuttons/CPowerButtonMethods.h"

#include "base/strings.h"
#include "platform/report_error.h"
#include "preferences/settings_keys.h"

namespace tolvo {

namespace {

constexpr const PowerButtonKeys &buttonKeys = settingKeys.powerButton;
constexpr const ActionKeys &actionKeys = settingKeys.action;

QString className() {
    return QStringLiteral("CPowerButtonMethods");
}

/// Reads one button. What can't be read takes its default and is complained of; nothing is shown here.
class ButtonReader {
  public:
    ButtonReader(const SettingsStore &store, const Catalogue &tools, int number)
        : m_store(store), m_tools(tools), m_number(number) {}

    void read(CPowerButton &button) {
        readProperties(button);
        int position = 0;
        for (const QString &subsection :
             m_store.subsections(treeName(ButtonSection::tree), ButtonSection::path(m_number))) {
            take(subsection);
            ToolPtr tool = m_tools.tool(m_token);
            if (!tool) {
                tool = m_tools.tool(unknownToolToken);
                unknownTokens += m_token;
            }
            const auto action = std::make_shared<CAction>(tool, m_dlgOption, m_details);
            action->setSwitchedOff(get(m_store, actionKeys.switchedOff, m_number, subsection));
            button.Add(action, ++position);
        }
    }

    QStringList unknownTokens; ///< one for each Action without a tool
    QStringList complaints;    ///< what is wrong with a value, and which it is
    int failure = 0;           ///< the number of the first of them

  private:
    /// The value that `read` gives, or the one that stands in for a text that can't be converted.
    template <class Value>
    Value converted(const QString &section, QStringView key, Value otherwise, auto read) {
        try {
            return read();
        } catch (const Failure &bad) {
            if (complaints.isEmpty())
                failure = bad.number();
            complaints += bad.description() + QStringLiteral(" (%2 of %1)").arg(section, key);
            return otherwise;
        }
    }

    template <class Form>
    typename Form::Value value(const Setting<Form, ButtonSection> &key) {
        return converted(ButtonSection::path(m_number), key.name, key.otherwise(),
                         [&] { return get(m_store, key, m_number); });
    }

    void readProperties(CPowerButton &button) {
        button.Name = value(buttonKeys.name);
        button.IconFontName = value(buttonKeys.fontName);
        button.IconFontSize = value(buttonKeys.fontSize);
        if (button.IconFontSize == 0)
            button.IconFontSize = buttonKeys.fontSize.otherwise();
        button.IconFontBold = value(buttonKeys.bold);
        button.IconFontItalic = value(buttonKeys.italic);
        button.IconText = value(buttonKeys.text);
        button.IconX = value(buttonKeys.x);
        button.IconY = value(buttonKeys.y);
    }

    /// Reads an Action's keys, all but whether it is switched off. One that isn't there keeps the value of
    /// the Action before: users have stores with such gaps.
    void take(const QString &subsection) {
        const QString section = ActionSection::path(m_number, subsection);
        const auto is = [](const QString &key, const auto &setting) {
            return key.compare(setting.name, Qt::CaseInsensitive) == 0;
        };
        for (const auto &[key, value] : pairsOf(m_store, {section, ActionSection::tree})) {
            if (is(key, actionKeys.token))
                m_token = value;
            else if (is(key, actionKeys.details))
                m_details = value;
            else if (is(key, actionKeys.dlgOption))
                m_dlgOption =
                    converted(section, actionKeys.dlgOption.name, SettingsFrom::Prompt, [&text = value] {
                        return static_cast<SettingsFrom>(forms::Integer::read(text));
                    });
        }
    }

    const SettingsStore &m_store;
    const Catalogue &m_tools;
    int m_number;
    QString m_token;
    QString m_details;
    SettingsFrom m_dlgOption = SettingsFrom::Prompt;
};

} // namespace

CPowerButtonMethods::CPowerButtonMethods(SettingsStore &store, const Catalogue &tools, MessageBoxes &boxes)
    : m_store(store), m_tools(tools), m_boxes(boxes) {
}

void CPowerButtonMethods::SavePBSettings(const CPowerButton &button, int number) {
    reportFailures(m_boxes, className(), QStringLiteral("SavePBSettings"), [&] {
        SettingsStore::Transaction transaction(m_store);
        if (!DeletePBSetting(number))
            return;
        const auto save = [&](const auto &key, const auto &value, const auto &...where) {
            set(m_store, key, value, number, where...);
        };
        save(buttonKeys.name, button.Name);
        save(buttonKeys.fontName, button.IconFontName);
        save(buttonKeys.fontSize, button.IconFontSize);
        save(buttonKeys.bold, button.IconFontBold);
        save(buttonKeys.italic, button.IconFontItalic);
        save(buttonKeys.text, button.IconText);
        save(buttonKeys.x, button.IconX);
        save(buttonKeys.y, button.IconY);
        for (int position = 1; position <= button.Count(); ++position) {
            const auto action = button.Item(position);
            const QString place = QString::number(position);
            save(actionKeys.token, action->Tool() ? action->Tool()->Token() : QString(), place);
            save(actionKeys.details, action->Details(), place);
            save(actionKeys.dlgOption, static_cast<int>(action->DlgOption()), place);
            if (action->switchedOff())
                save(actionKeys.switchedOff, true, place);
        }
        transaction.commit();
    });
}

bool CPowerButtonMethods::ReadPBSettings(CPowerButton &button, int number) {
    reportFailures(m_boxes, className(), QStringLiteral("ReadPBSettings"), [&] {
        ButtonReader reader(m_store, m_tools, number);
        reader.read(button);
        for (const QString &token : std::as_const(reader.unknownTokens))
            m_boxes.show({FillTemplate(QStringLiteral("A tool with the token '%0' was found in PowerButton "
                                                      "%1 '%2'.\r\nThis tool does not exist: it was probably "
                                                      "deleted from Tools.dat.\r\nIt will be skipped"),
                                       {token, QString::number(number), button.Name})});
        if (!reader.complaints.isEmpty())
            throw Failure(reader.failure, FillTemplate(QStringLiteral("PowerButton %0 '%1':\r\n"),
                                                       {QString::number(number), button.Name}) +
                                              reader.complaints.join(QStringLiteral("\r\n")));
    });
    return button.Count() > 0;
}

std::shared_ptr<CPowerButton> CPowerButtonMethods::changedInStore(const CPowerButton &button, int number) {
    auto stored = std::make_shared<CPowerButton>();
    ButtonReader(m_store, m_tools, number).read(*stored);
    if (*stored == button)
        return nullptr;
    stored = std::make_shared<CPowerButton>();
    ReadPBSettings(*stored, number);
    return stored;
}

bool CPowerButtonMethods::DeletePBSetting(int number) {
    return reportFailures(m_boxes, className(), QStringLiteral("DeletePBSetting"), [&] {
        m_store.DeleteSetting(treeName(ButtonSection::tree), ButtonSection::path(number));
    });
}

} // namespace tolvo
