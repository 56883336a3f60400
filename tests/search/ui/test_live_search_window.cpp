// SPDX-License-Identifier: MIT
// The search window while a search is being written: marks, words, wave lines, the list of replacements.
#include "platform/desktop/PlainTextBox.h"
#include "preferences/settings_store.h"
#include "search/ui/frmSearch.h"
#include "search/ui/frmSearchResults.h"
#include "search/ui/replacement_list.h"
#include "tests/search/search_world.h"
#include "tests/ui/user.h"
#include "widgets/ElidedLabel.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>

namespace tolvo::test {
namespace {

class LiveSearchWindow : public SearchWorld {
  public:
    TextBox &txtCurrent() override { return text; }
    void directionChanged(SearchDirection direction) override { window->setDirection(direction); }
    SearchResults &results() override { return resultsWindow; }

  protected:
    void SetUp() override {
        text.resize(400, 200);
        text.show();
        other.hide();
        test::show(text, QStringLiteral("«»one two One one"));
        reopen();
    }
    void TearDown() override { window.reset(); }
    void reopen() {
        window = std::make_unique<frmSearch>(search, store, boxes, nullptr);
        window->watch({.boxes = {&text, &other},
                       .shown = [this]() -> PlainTextBox & { return text; },
                       .worker = worker});
    }
    template <class Control>
    Control &find(const char *name) {
        return child<Control>(*window, name);
    }
    void open(bool replacing) {
        window->showDialog(replacing);
        activate(*window);
    }
    void click(const char *name) { find<QAbstractButton>(name).click(); }
    void look(const QString &pattern) { find<QComboBox>("cmbSearchText").setEditText(pattern); }
    void becomes(const QString &words) {
        ElidedLabel &label = find<ElidedLabel>("labAnswer");
        const bool isSaid = QTest::qWaitFor([&] { return label.text() == words; }, 2000);
        EXPECT_TRUE(isSaid) << label.text().toStdString() << ", not " << words.toStdString();
        EXPECT_EQ(label.accessibleName(), words);
    }
    /// The marked places, as "start+length", the current one after a slash.
    [[nodiscard]] QString marked() const {
        const auto listed = [this](TintLayer layer) {
            QStringList places;
            for (const Stretch &mark : text.tint(layer))
                places += QStringLiteral("%1+%2").arg(mark.start).arg(mark.length);
            return places.join(u' ');
        };
        return listed(TintLayer::Matches) + u'/' + listed(TintLayer::CurrentMatch);
    }
    qsizetype mistakeIn(const char *name) {
        const QLineEdit &edit = *find<QComboBox>(name).lineEdit();
        return dynamic_cast<MistakeMark &>(*edit.findChild<QWidget *>(QStringLiteral("mistake"))).place();
    }
    QString listed() {
        QStringList rows;
        const auto &shown = find<ReplacementList>("lstReplacements");
        for (int row = 0; row < shown.topLevelItemCount(); ++row)
            rows += shown.topLevelItem(row)->text(0) + u'>' + shown.topLevelItem(row)->text(1);
        return rows.join(u' ');
    }
    void listBecomes(const QString &rows) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return listed() == rows; }, 2000)) << listed().toStdString();
    }

    PlainTextBox text{PlainTextBox::Lines::AsTheyAre};
    PlainTextBox other{PlainTextBox::Lines::Wrapped};
    BackgroundWorker worker;
    SettingsStore store{QStringLiteral(":memory:")};
    SearchResultsWindow resultsWindow{[] { return QFont(); }, [this]() -> TextBox & { return text; },
                                      nullptr};
    std::unique_ptr<frmSearch> window;
};

TEST_F(LiveSearchWindow, MarksWhatItFindsForAsLongAsItIsShown) {
    open(false);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("one"));
    click("optSrchDown");
    becomes("3 matches");
    EXPECT_EQ(marked(), "0+3 8+3 12+3/");
    click("cmdSearch");
    becomes("1 of 3");
    EXPECT_EQ(marked(), "0+3 8+3 12+3/0+3");
    select(text, 12, 3);
    becomes("3 of 3: From Start goes on with the others");
    click("chkMatchCase");
    becomes("2 of 2: From Start goes on with the others");
    EXPECT_EQ(marked(), "0+3 12+3/12+3");
    window->hide();
    EXPECT_EQ(marked(), "/");
    open(false);
    becomes("2 of 2: From Start goes on with the others");
    find<QTabBar>("TabStrip1").setCurrentIndex(2);
    look("[ot]\\w+");
    becomes("3 of 3: From Start goes on with the others");
    click("chkMarkMatches");
    EXPECT_EQ(marked(), "/");
    reopen();
    open(false);
    look("one");
    becomes("3 of 3");
    EXPECT_EQ(marked(), "/") << "the tick is remembered";
    look("");
    becomes("");
}

TEST_F(LiveSearchWindow, MarksEmptyMatchesInTheirPlaces) {
    open(false);
    find<QTabBar>("TabStrip1").setCurrentIndex(2);
    text.setText(QStringLiteral("ab\r\nb"));
    look("b*");
    becomes("2 matches below: From Start finds them");
    EXPECT_EQ(marked(), "0+0 1+1 2+0 4+1 5+0/");
}

TEST_F(LiveSearchWindow, FollowsATextThatChangesUnderIt) {
    open(false);
    look("one");
    becomes("3 matches below: From Start finds them");
    text.setText(QStringLiteral("none"));
    EXPECT_EQ(marked(), "/") << "nothing stands wrong, not even for a moment";
    becomes("1 match below: From Start finds it");
    EXPECT_EQ(marked(), "1+3/");
    QTest::keyClicks(&text, QStringLiteral("one "));
    becomes("2 matches");
    EXPECT_EQ(marked(), "0+3 5+3/");
    window.reset();
    EXPECT_EQ(marked(), "/");
}

TEST_F(LiveSearchWindow, ShowsWhereAMistakeIs) {
    open(true);
    find<QTabBar>("TabStrip1").setCurrentIndex(2);
    look("one|(two");
    becomes("a group is not closed, at character 5");
    EXPECT_EQ(mistakeIn("cmbSearchText"), 4);
    EXPECT_EQ(find<QComboBox>("cmbSearchText").accessibleDescription(),
              "a group is not closed, at character 5");
    EXPECT_EQ(marked(), "/");
    QTest::keyClick(find<QComboBox>("cmbSearchText").lineEdit(), Qt::Key_ParenRight);
    EXPECT_EQ(mistakeIn("cmbSearchText"), -1);
    becomes("4 matches below: From Start finds them");
    find<QComboBox>("cmbReplaceText").setEditText("1\\xg");
    EXPECT_TRUE(QTest::qWaitFor([&] { return mistakeIn("cmbReplaceText") == 1; }));
    EXPECT_EQ(find<ElidedLabel>("labForecast").text(), "Hexadecimal digits are missing, at character 2");
}

TEST_F(LiveSearchWindow, ShowsWhatAReplacementBecomes) {
    open(true);
    window->expandDialog();
    look("one");
    find<QComboBox>("cmbReplaceText").setEditText("zero");
    listBecomes("one>zero One>Zero one>zero");
    EXPECT_EQ(find<ElidedLabel>("labForecast").text(), "3 will be replaced");
    find<QComboBox>("cmbReplaceText").setEditText("");
    listBecomes("one>(nothing) One>(nothing) one>(nothing)");
    auto &shown = find<ReplacementList>("lstReplacements");
    const QPoint second = shown.visualItemRect(shown.topLevelItem(1)).center();
    QTest::mouseClick(shown.viewport(), Qt::LeftButton, {}, second);
    becomes("2 of 3");
    EXPECT_EQ(text.SelText(), "One");
    QTest::keyClick(&shown, Qt::Key_Down);
    QTest::keyClick(&shown, Qt::Key_Return);
    EXPECT_EQ(text.SelStart(), 12);
    text.setCapacity(text.length());
    find<QComboBox>("cmbReplaceText").setEditText("three");
    listBecomes("one>three One>Three one>three");
    EXPECT_EQ(find<ElidedLabel>("labForecast").text(), "2 will be replaced, and the end cut off: too long");
    click("cmdReplaceAll");
    EXPECT_EQ(said(), "2 strings replaced");
    becomes("no match");
    EXPECT_EQ(listed() + find<ElidedLabel>("labForecast").text(), "");
    open(false);
    EXPECT_FALSE(find<QWidget>("lstReplacements").isVisible() || find<QWidget>("labForecast").isVisible());
}

TEST_F(LiveSearchWindow, SaysWhatIsWrongWithAStepThatIsCollected) {
    QString settings = QStringLiteral("Mode=3, Find=one");
    QTimer::singleShot(0, window.get(), [this] {
        look("(");
        becomes("a group is not closed, at character 1");
        look("one");
        becomes("");
        EXPECT_EQ(marked(), "/");
        click("cmdOK");
    });
    EXPECT_TRUE(window->getSettings(settings, true));
}

} // namespace
} // namespace tolvo::test
