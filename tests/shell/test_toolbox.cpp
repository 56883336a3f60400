// SPDX-License-Identifier: MIT
// The panel of tools, and clicks on its rows.
#include "shell/cToolbox.h"
#include "tests/support/User.h"

using namespace tolvo;
using namespace tolvo::test;

namespace {

/// "+One -Two *two-a" and so on: + a closed category, - an open one, * a tool.
QString pictureOf(const cToolbox &box) {
    QStringList rows;
    for (int number = 1; number <= cToolbox::rowCount; ++number) {
        const cToolbox::Row &row = box.row(number);
        if (row.visible)
            rows += (row.mark == cToolbox::Mark::Hidden ? u'*'
                     : row.mark == cToolbox::Mark::Open ? u'-'
                                                        : u'+') +
                    row.text;
    }
    return rows.join(u' ');
}

QList<Catalogue::PanelItem> items(const QStringList &names) {
    QList<Catalogue::PanelItem> list;
    for (const QString &name : names)
        list.append({name, name.front().isUpper() ? ">" : "t" + name, {}});
    return list;
}

class Panel : public ::testing::Test {
  protected:
    Panel() {
        box.setHooks({.rowsChanged = {}, .delay = [this](int) {
                          EXPECT_TRUE(box.rolling());
                          steps += pictureOf(box);
                      }});
        box.setSound([this] { ++sounds; });
        box.init(items({"A", "a", "b", "C", "c", "D"}));
    }
    cToolbox box;
    QStringList steps;
    int sounds = 0;
};

TEST_F(Panel, rollsOneStepForEachTool) {
    EXPECT_EQ(pictureOf(box), "+A +C +D");
    box.Layout(1);
    EXPECT_EQ(steps.join(u'|'), "-A *a +C +D|-A *a *b +C +D");
    EXPECT_EQ(box.row(4).tag, "LAY2");
    EXPECT_EQ(box.row(2).tag, "ta");
    steps.clear();
    box.Layout(2); // the open one closes first
    EXPECT_EQ(steps.join(u'|'), "-A *b +C +D|-A +C +D|+A -C *c +D");
    box.Layout(2);
    EXPECT_EQ(pictureOf(box), "+A +C +D");
    EXPECT_FALSE(box.rolling());
    EXPECT_EQ(sounds, 4);
}

TEST_F(Panel, holdsNoMoreThanItsRows) {
    QStringList names{"A"};
    names.resize(30, "t");
    names += "Z";
    box.init(items(names));
    EXPECT_EQ(pictureOf(box), "+A +Z");
    box.Layout(1);
    EXPECT_EQ(pictureOf(box), "-A" + QString(" *t").repeated(17));
    box.Layout(1); // a full panel empties as well
    EXPECT_EQ(pictureOf(box), "+A +Z");
}

TEST(PanelOfTheCatalogue, hasRoomForEveryCategory) {
    cToolbox box;
    box.init(realCatalogue().panelItems());
    int categories = 0;
    while (categories < cToolbox::rowCount && box.row(categories + 1).visible)
        ++categories;
    for (int layer = 1; layer <= categories; ++layer) {
        box.Layout(layer);
        int open = 0;
        for (int number = 1; number <= cToolbox::rowCount; ++number) {
            const cToolbox::Row &row = box.row(number);
            open += row.visible && row.isCategory();
            EXPECT_FALSE(row.tag.startsWith(u"pb") || row.tag == u"foCOL") << "no tool of the panel";
        }
        EXPECT_EQ(open, categories) << "no room below category " << layer;
    }
}

TEST(PanelOfTheCatalogue, clicksOpenCategoriesAndRunTools) {
    User user("a");
    cToolbox box;
    box.init(realCatalogue().panelItems());
    bool clickedMeanwhile = false;
    box.setHooks({.rowsChanged = {}, .delay = [&](int) {
                      user.session.lblToolbox_Click(box, 2);
                      clickedMeanwhile = true;
                  }});
    user.session.setStatus("old");
    user.session.lblToolbox_Click(box, 1);
    EXPECT_TRUE(clickedMeanwhile);
    EXPECT_EQ(user.session.labStatus(), QString());
    user.sees("«»a"); // clicks during the animation do nothing
    user.session.bRightButton = true;
    user.session.lblToolbox_Click(box, 2);
    user.sees("«»A", "1 characters: upper case");
    EXPECT_FALSE(user.session.bRightButton);
}

} // namespace
