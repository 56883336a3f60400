// SPDX-License-Identifier: MIT
#include "shell/tool_preview.h"
#include "tests/support/User.h"

using namespace tolvo;
using namespace tolvo::test;

namespace {

TEST(ToolPreview, isWhatTheToolMakesOfTheText) {
    int previews = 0;
    for (const ToolRow &row : toolTable()) {
        if (!row.operation.run || !row.operation.settings)
            continue;
        for (const char *picture : {"«»", "«»one||||two", "one two|«three» four||", "«1. one|2. two»|x"}) {
            User user(picture);
            const TextState before = textState(user.session.txtCurrent());
            const auto after = textAfterTool(row, row.operation.settings(), user.session.oTextMethods,
                                             user.session.txtCurrent());
            user.sees(picture);
            EXPECT_EQ(user.opened, QStringList());
            user.runsAgain(QString::fromUtf16(row.token));
            ASSERT_TRUE(after);
            const TextState now = textState(user.session.txtCurrent());
            EXPECT_EQ(after->text, now.text) << picture;
            EXPECT_EQ(after->selStart, now.selStart);
            EXPECT_EQ(after->selLength, now.selLength);
            previews += after->text != before.text ? 1 : 0;
        }
    }
    EXPECT_GE(previews, 12) << "or nothing has been compared";
}

TEST(ToolPreview, isThereForUnfinishedSettingsToo) {
    User user("one two three");
    const auto preview = [&](const char16_t *token, const ToolSettings &settings) {
        return textAfterTool(*toolRow(token), settings, user.session.oTextMethods, user.session.txtCurrent());
    };
    for (const int width : {-1, 0, 1, 5, 1'000'000})
        EXPECT_TRUE(preview(u"foWRP", WordWrapSettings{.width = width})) << width;
    EXPECT_FALSE(preview(u"foWRP", IndentSettings())) << "settings of another tool";
    EXPECT_FALSE(preview(u"ccUPP", IndentSettings())) << "a tool without settings";
}

TEST(PowerButton, takesAToolAsItsLastStep) {
    User user("a  b");
    const auto button = [&] { return user.session.services().oPowerButtons.Item(3); };
    user.session.addToPowerButton(2, "foSSP");
    EXPECT_EQ(user.session.labStatus(), "Single spaces added to PowerButton 3");
    EXPECT_EQ(button()->Name, "Single spaces");
    user.session.addToPowerButton(2, "foIND");
    EXPECT_EQ(user.session.labStatus(), "Indent added to PowerButton 3");
    EXPECT_EQ(button()->Name, "Single spaces");
    ASSERT_EQ(button()->Count(), 2);
    EXPECT_EQ(button()->Item(1)->DlgOption(), SettingsFrom::Prompt);
    EXPECT_EQ(button()->Item(2)->DlgOption(), SettingsFrom::Current);
    CPowerButton stored;
    EXPECT_TRUE(user.session.services().oPBMethods.ReadPBSettings(stored, 3));
    EXPECT_EQ(stored, *button());
    user.session.addToPowerButton(2, "pbPBT");
    EXPECT_EQ(user.session.labStatus(), "Run PowerButton can be added in the editor of PowerButton 3");
    EXPECT_EQ(button()->Count(), 2);
    user.session.bRightButton = false;
    user.session.imgPower_Click(2);
    EXPECT_EQ(user.session.txtCurrent().Text(), "\ta b");
}

} // namespace
