// SPDX-License-Identifier: MIT
// What the tests of PowerButtons stand on: the real catalogue, a store in memory, boxes that are expected.
#pragma once

#include "powerbuttons/CPowerButtonMethods.h"
#include "powerbuttons/action_settings.h"
#include "powerbuttons/editor_rules.h"
#include "preferences/settings_store.h"

#include <gtest/gtest.h>

namespace tolvo {

/// Answers the boxes that a test expects, in order; any other box, and one that doesn't come, fails the test.
class ExpectedBoxes : public MessageBoxes {
  public:
    ~ExpectedBoxes() override {
        EXPECT_TRUE(m_expected.isEmpty()) << "missing: " << m_expected.first().first.toStdString();
    }

    /// The box whose text begins so.
    void expect(const QString &start, BoxAnswer answer = BoxAnswer::Ok) {
        m_expected.append({start, answer});
    }

    BoxAnswer show(const Box &box) override {
        last = box;
        if (m_expected.isEmpty() || !box.text.startsWith(m_expected.first().first)) {
            ADD_FAILURE() << "unexpected box: " << box.text.toStdString();
            return BoxAnswer::No;
        }
        return m_expected.takeFirst().second;
    }

    Box last;

  private:
    QList<std::pair<QString, BoxAnswer>> m_expected;
};

/// Answers for the tools' dialogs, and remembers what was asked.
class ScriptedSettings : public ActionSettings {
  public:
    std::optional<QString> getSettings(const QString &token, const QString &details) override {
        asked = token + u':' + details;
        return answer;
    }
    QString asked;
    std::optional<QString> answer;
};

inline QString realCatalogue() {
    return qEnvironmentVariable("TOLVO_SOURCE") + "/data/Tools.dat";
}

class World : public testing::Test {
  protected:
    World() {
        for (int number = 1; number <= CPowerButtonCollection::buttonCount; ++number)
            buttons.Add(std::make_shared<CPowerButton>(), number);
    }

    std::shared_ptr<CAction> action(const char *token, const QString &details = {},
                                    SettingsFrom option = SettingsFrom::Prompt) const {
        return std::make_shared<CAction>(tools.tool(QLatin1StringView(token)), option, details);
    }

    /// "edSTR foREM(Single=1)": the Actions' tokens and, if there are any, their details.
    static QString actionsOf(const CPowerButton &button) {
        QStringList list;
        for (int position = 1; position <= button.Count(); ++position) {
            const auto step = button.Item(position);
            const QString token = step->Tool() ? step->Tool()->Token() : "-";
            list += step->Details().isEmpty() ? token : token + u'(' + step->Details() + u')';
        }
        return list.join(u' ');
    }

    /// What another run of the program would read.
    CPowerButton reread(int number) {
        CPowerButton button;
        static_cast<void>(methods.ReadPBSettings(button, number));
        return button;
    }

    Catalogue tools = Catalogue::read(realCatalogue());
    SettingsStore store{":memory:"};
    ExpectedBoxes boxes;
    CPowerButtonMethods methods{store, tools, boxes};
    CPowerButtonCollection buttons;
    ScriptedSettings settings;
};

} // namespace tolvo
