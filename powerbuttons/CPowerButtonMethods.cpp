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

/// Reads one button. What can't be read takes its default and is complained of; nothing is shown here.
class ButtonReader {
  public:
    ButtonReader(const SettingsStore &store, const Catalogue &tools, int number)
        : m_store(store), m_tools(tools), m_number(number) {}

    void read(CPowerButton &button) {
        readProperties(button);
        int position = 0;
        for (const QString &subsection : m_store.subsections(applicationTitle(), buttonSection(m_number))) {
            take(actionSection(m_number, subsection));
            ToolPtr tool = m_tools.tool(m_token);
            if (!tool) {
                tool = m_tools.tool(unknownToolToken);
                unknownTokens += m_token;
            }
            button.Add(std::make_shared<CAction>(tool, m_dlgOption, m_details), ++position);
        }
    }

    QStringList unknownTokens; ///< one for each Action without a tool
    QStringList complaints;    ///< what is wrong with a value, and which it is
    int failure = 0;           ///< the number of the first of them

  private:
    /// The value that `text` is converted to, or the default.
    template <class Value>
    Value converted(const QString &section, const char *key, const QString &text,
                    Value (*convert)(const QString &), Value otherwise) {
        try {
            return convert(text);
        } catch (const Failure &bad) {
            if (complaints.isEmpty())
                failure = bad.number();
            complaints +=
                bad.description() + QStringLiteral(" (%2 of %1)").arg(section, QLatin1StringView(key));
            return otherwise;
        }
    }

    void readProperties(CPowerButton &button) {
        const QString section = buttonSection(m_number);
        const auto value = [&](const char *key, const QString &defaultValue) {
            return m_store.GetSetting(applicationTitle(), section, QLatin1StringView(key), defaultValue);
        };
        const auto number = [&](const char *key, double otherwise) {
            return converted(section, key, value(key, numberText(otherwise)), toNumber, otherwise);
        };
        const auto flag = [&](const char *key) {
            return converted(section, key, value(key, flagWord(false)), toFlag, false);
        };
        button.Name = value("Name", CPowerButton::undefinedName());
        button.IconFontName = value("FontName", {});
        button.IconFontSize = number("FontSize", defaultFontSize);
        if (button.IconFontSize == 0)
            button.IconFontSize = defaultFontSize;
        button.IconFontBold = flag("Bold");
        button.IconFontItalic = flag("Italic");
        button.IconText = value("Text", {});
        button.IconX = number("X", 0);
        button.IconY = number("Y", 0);
    }

    /// Reads an Action's keys. One that isn't there keeps the value of the Action before: stores with such
    /// gaps have always been read so.
    void take(const QString &section) {
        const auto pairs = m_store.GetAllSettings(applicationTitle(), section);
        if (!pairs)
            return;
        const auto is = [](const QString &key, QLatin1StringView name) {
            return key.compare(name, Qt::CaseInsensitive) == 0;
        };
        for (const auto &[key, value] : *pairs) {
            if (is(key, QLatin1StringView("Token")))
                m_token = value;
            else if (is(key, QLatin1StringView("Details")))
                m_details = value;
            else if (is(key, QLatin1StringView("DlgOption")))
                m_dlgOption = converted(section, "DlgOption", value, toInteger, static_cast<int>(Prompt));
        }
    }

    const SettingsStore &m_store;
    const Catalogue &m_tools;
    int m_number;
    QString m_token;
    QString m_details;
    int m_dlgOption = Prompt;
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
    return reportFailures(m_boxes, className(), QStringLiteral("DeletePBSetting"),
                          [&] { m_store.DeleteSetting(applicationTitle(), buttonSection(number)); });
}

} // namespace tolvo
