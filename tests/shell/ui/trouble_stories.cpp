// SPDX-License-Identifier: MIT
// The line over a fresh text that says what looks wrong with it.
#include "shell/ui/MainWindow.h"
#include "shell/ui/hint_strip.h"
#include "tests/shell/ui/MainWindowStory.h"

using namespace tolvo;

namespace {

class TroubleStory : public MainWindowStory {
  protected:
    /// The words of the buttons that show; none without a line.
    static QStringList offered() {
        QStringList words;
        for (const auto *button : window()->findChildren<HintButton *>()) {
            if (button->isVisible() && button->objectName().startsWith(u"troubles_"))
                words += button->text();
        }
        return words;
    }
    static void expectOffered(const QStringList &words) {
        const bool there = QTest::qWaitFor([&] { return offered() == words; });
        EXPECT_TRUE(there) << offered().join(u',').toStdString() << ", not "
                           << words.join(u',').toStdString();
    }
    static QAbstractButton &button(int place) {
        return child<QAbstractButton>(*window(), qPrintable(QStringLiteral("troubles_%1").arg(place)));
    }
    static QStringList marked() {
        QStringList texts;
        const auto &box = dynamic_cast<PlainTextBox &>(*text());
        for (const Stretch &mark : box.tint(TintLayer::Troubles))
            texts += box.Text().mid(mark.start, mark.length);
        return texts;
    }
    static void leave() { QTest::keyClick(text(), Qt::Key_D, Qt::AltModifier); }
    const QString mail = QStringLiteral("> one\n> two\nTom &amp; Ann");
};

TEST_F(TroubleStory, aClickMendsAndUndoBringsTheOfferBack) {
    run(mail, [] {
        expectOffered({"mail quotes", "HTML codes"});
        EXPECT_TRUE(button(0).toolTip().startsWith(u"Clean up e-mail\n"));
        QTest::keyClick(text(), Qt::Key_F6);
        EXPECT_TRUE(button(0).hasFocus());
        EXPECT_EQ(marked(), (QStringList{"> ", "> "}));
        QTest::keyClick(&button(0), Qt::Key_Return);
        EXPECT_TRUE(text()->hasFocus());
        EXPECT_EQ(text()->toPlainText(), QStringLiteral("one\ntwo\nTom &amp; Ann"));
        EXPECT_EQ(marked(), QStringList());
        expectOffered({"HTML codes"});
        QTest::keyClick(text(), Qt::Key_Z, Qt::ControlModifier);
        expectOffered({"mail quotes", "HTML codes"});
        button(1).click();
        EXPECT_EQ(text()->toPlainText(), QStringLiteral("> one\n> two\nTom & Ann"));
        button(0).click(); // before the text has been looked at again
        expectOffered({});
        leave();
    });
}

TEST_F(TroubleStory, theFirstKeyThatTypesEndsItAndTheTextStaysWhereItIs) {
    run(mail, [] {
        expectOffered({"mail quotes", "HTML codes"});
        const auto firstLine = [] {
            return text()->viewport()->mapToGlobal(text()->cursorRect().topLeft()).y();
        };
        QTest::keyClick(text(), Qt::Key_Down);
        QTest::keyClick(text(), Qt::Key_Up);
        EXPECT_FALSE(offered().isEmpty()) << "a key that walks types nothing";
        const int before = firstLine();
        QTest::keyClicks(text(), QStringLiteral("x"));
        EXPECT_TRUE(offered().isEmpty());
        EXPECT_EQ(firstLine(), before);
        child<QAbstractButton>(*window(), "cmdRefresh").click();
        expectOffered({"mail quotes", "HTML codes"});
        EXPECT_EQ(firstLine(), before);
        child<QAbstractButton>(*window(), "troubles_close").click();
        EXPECT_TRUE(offered().isEmpty());
        EXPECT_LT(firstLine(), before) << "nobody was typing";
        leave();
    });
}

TEST_F(TroubleStory, whatDoesNotFitIsLeftOutAndTheWindowNeedsNoMoreWidth) {
    run(QStringLiteral("> one  a  b  \n> two &lt;  \n\n\n\nend"), [] {
        window()->resize(1400, window()->height());
        expectOffered(
            {"mail quotes", "HTML codes", "double spaces", "blank lines in a row", "spaces at line ends"});
        const QStringList all = offered();
        const int least = window()->minimumSizeHint().width();
        EXPECT_LE(least, 632) << "as without the line";
        window()->resize(least, window()->height());
        EXPECT_TRUE(QTest::qWaitFor([&] { return offered().size() < all.size(); }));
        EXPECT_EQ(offered(), all.first(offered().size()));
        EXPECT_GE(offered().size(), 1);
        leave();
    });
}

TEST_F(TroubleStory, staysAwayWhereItIsNotWanted) {
    set(store, settingKeys.hints.troubles, false);
    run(mail, [] {
        QTest::qWait(100);
        EXPECT_TRUE(offered().isEmpty());
        leave();
    });
    set(store, settingKeys.hints.troubles, true);
    run(QStringLiteral("one line"), [] {
        QTest::qWait(100);
        EXPECT_TRUE(offered().isEmpty());
        leave();
    });
}

} // namespace
