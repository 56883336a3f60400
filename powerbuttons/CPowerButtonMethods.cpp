// SPDX-License-Identifier: MIT
#include "powerbuttons/CPowerButtonMethods.h"

#include "base/application.h"
#include "base/conversions.h"
#include "base/numbers.h"
#include "base/strings.h"
#include "platform/report_error.h"
#include "preferences/settings_store.h"

namespace tolvo {

namespace {

constexpr double defaultFontSize = 16;

QString className() {
    return QStringLiteral("CPowerButtonMethods");
}

QString buttonSection(int number) {
    return QStringLiteral("PowerButtons\\Button %1").arg(number);
}

QString actionSection(int number, const QString &subsection) {
    return buttonSection(number) + u'\\' + subsection;
}

void readProperties(const SettingsStore &store, CPowerButton &button, int number) {
    const QString section = buttonSection(number);
    const auto value = [&](const char *key, const QString &defaultValue) {
        return store.GetSetting(applicationTitle(), section, QString::fromLatin1(key), defaultValue);
    };
    button.Name = value("Name", CPowerButton::undefinedName());
    button.IconFontName = value("FontName", {});
    button.IconFontSize = toNumber(value("FontSize", QStringLiteral("16")));
    if (button.IconFontSize == 0)
        button.IconFontSize = defaultFontSize;
    button.IconFontBold = toFlag(value("Bold", flagWord(false)));
    button.IconFontItalic = toFlag(value("Italic", flagWord(false)));
    button.IconText = value("Text", {});
    button.IconX = toNumber(value("X", QStringLiteral("0")));
    button.IconY = toNumber(value("Y", QStringLiteral("0")));
}

/// What one subsection holds. A key that isn't there keeps the value of the Action before: stores with such
/// gaps have always been read so.
struct StoredAction {
    QString token;
    QString details;
    int dlgOption = Prompt;

    void take(const SettingsStore &store, const QString &section) {
        const auto pairs = store.GetAllSettings(applicationTitle(), section);
        if (!pairs)
            return;
        const auto is = [](const QString &key, QLatin1StringView name) {
            return key.compare(name, Qt::CaseInsensitive) == 0;
        };
        for (const auto &[key, value] : *pairs) {
            if (is(key, QLatin1StringView("Token")))
                token = value;
            else if (is(key, QLatin1StringView("Details")))
                details = value;
            else if (is(key, QLatin1StringView("DlgOption")))
                dlgOption = toInteger(value);
        }
    }
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
        const auto save = [&](const QString &section, const char *key, const QString &value) {
            m_store.SaveSetting(applicationTitle(), section, QString::fromLatin1(key), value);
        };
        const QString section = buttonSection(number);
        save(section, "Name", button.Name);
        save(section, "FontName", button.IconFontName);
        save(section, "FontSize", numberText(button.IconFontSize));
        save(section, "Bold", flagWord(button.IconFontBold));
        save(section, "Italic", flagWord(button.IconFontItalic));
        save(section, "Text", button.IconText);
        save(section, "X", numberText(button.IconX));
        save(section, "Y", numberText(button.IconY));
        for (int position = 1; position <= button.Count(); ++position) {
            const auto action = button.Item(position);
            const QString place = actionSection(number, QString::number(position));
            save(place, "Token", action->Tool() ? action->Tool()->Token() : QString());
            save(place, "Details", action->Details());
            save(place, "DlgOption", QString::number(action->DlgOption()));
        }
        transaction.commit();
    });
}

bool CPowerButtonMethods::ReadPBSettings(CPowerButton &button, int number) {
    reportFailures(m_boxes, className(), QStringLiteral("ReadPBSettings"), [&] {
        readProperties(m_store, button, number);
        StoredAction stored;
        int position = 0;
        for (const QString &subsection : m_store.subsections(applicationTitle(), buttonSection(number))) {
            stored.take(m_store, actionSection(number, subsection));
            ToolPtr tool = m_tools.tool(stored.token);
            if (!tool) {
                tool = m_tools.tool(unknownToolToken);
                m_boxes.show(
                    {FillTemplate(QStringLiteral("A tool with the token '%0' was found in PowerButton "
                                                 "%1 '%2'.\r\nThis tool does not exist: it was probably "
                                                 "deleted from Tools.dat.\r\nIt will be skipped"),
                                  {stored.token, QString::number(number), button.Name})});
            }
            button.Add(std::make_shared<CAction>(tool, stored.dlgOption, stored.details), ++position);
        }
    });
    return button.Count() > 0;
}

bool CPowerButtonMethods::DeletePBSetting(int number) {
    return reportFailures(m_boxes, className(), QStringLiteral("DeletePBSetting"),
                          [&] { m_store.DeleteSetting(applicationTitle(), buttonSection(number)); });
}

} // namespace tolvo
