// SPDX-License-Identifier: MIT
#include "spelling/spelling_walk.h"
#include "spelling_world.h"

#include <QEventLoop>
#include <QTimer>

namespace tolvo::test {

class Walk : public SpellingWorld {
  public:
    bool start(const char *text, int LangID = -1) { return walk.start(u(text), LangID, false); }

    /// The text with its marks: "[mistake]" and "{replaced}"; "|" for a line end.
    QString picture() const {
        QString shown;
        const MarkedText &text = walk.rtbText();
        for (const MarkRun &run : text.runs(0, text.text().size())) {
            const QString stretch = text.text().mid(run.start, run.length);
            shown += run.mark == Mark::Mistake    ? u'[' + stretch + u']'
                     : run.mark == Mark::Replaced ? u'{' + stretch + u'}'
                                                  : stretch;
        }
        return shown.replace(u'\r', u'|');
    }
    QString mistake() const { return walk.isOver() ? u("(over)") : walk.controls().labMistake; }
    /// Which of the buttons Change, Change All, Delete, Undo can be used: "CADU".
    QString enabled() const {
        const WalkControls &c = walk.controls();
        return QString(c.cmdChangeEnabled ? u("C") : u("-")) + (c.cmdChangeAllEnabled ? u("A") : u("-")) +
               (c.cmdDeleteEnabled ? u("D") : u("-")) + (c.cmdUndoEnabled ? u("U") : u("-"));
    }
    void change(const char *correction) {
        walk.setCorrection(u(correction));
        walk.cmdChange();
    }
    ErrorWalk walk{services, *this};
};

TEST_F(Walk, ShowsAnError) {
    store.SaveSetting(u("Tolvo"), u("Spelling"), u("DictionaryList"), u("British|English|2057"));
    EXPECT_FALSE(start("the quick fox"));
    EXPECT_EQ(std::exchange(status, {}), QStringList(u("Checking. Please wait...")));
    ASSERT_TRUE(start("the teh", 2057));
    EXPECT_EQ(walk.controls().caption, u("Spelling and Grammar - British"));
    EXPECT_EQ(walk.controls().labErrorType, u("Not in dictionary:"));
    EXPECT_EQ(walk.controls().lstSuggestions, QStringList(u("the")));
    EXPECT_EQ(walk.controls().txtCorrection, u("the"));
    EXPECT_EQ(picture(), u("the [teh]"));
    EXPECT_EQ(enabled(), u("CA--"));
    walk.setCorrection(u("teh"));
    EXPECT_EQ(enabled(), u("----"));
    EXPECT_EQ(status, QStringList({u("Checking. Please wait..."), QString()}));
    ASSERT_TRUE(start("teh fox")); // no mark at the very start
    EXPECT_EQ(picture(), u("teh fox"));
}

TEST_F(Walk, MovesLaterErrorsByWhatChangesAdd) {
    ASSERT_TRUE(start("a teh fox hte\rhelo"));
    change("there");
    EXPECT_EQ(picture(), u("a {there} fox [hte]|helo"));
    EXPECT_EQ(walk.errorStart(), 12);
    EXPECT_EQ(walk.caret(), 10); // without what was added
    walk.cmdIgnore();
    EXPECT_EQ(picture(), u("a {there} fox hte|[helo]"));
    change("a");
    EXPECT_EQ(mistake(), u("(over)"));
    EXPECT_EQ(picture(), u("a {there} fox hte|{a}"));
    EXPECT_FALSE(walk.bCancelled());
}

TEST_F(Walk, IgnoresAWordEverywhere) {
    ASSERT_TRUE(start("a teh hte TEH teh helo"));
    walk.cmdIgnoreAll();
    change("the");
    EXPECT_EQ(mistake(), u("helo"));
    walk.cmdUndo(); // ignored words stay ignored
    EXPECT_EQ(mistake(), u("hte"));
    EXPECT_EQ(picture(), u("a teh [hte] TEH teh helo"));
    walk.cmdIgnore();
    EXPECT_EQ(mistake(), u("helo"));
}

TEST_F(Walk, ChangesAWordEverywhere) {
    for (const bool smart : {false, true}) {
        walk.setSmartReplace(smart);
        ASSERT_TRUE(start("a teh fox TEH Teh helo"));
        walk.cmdChangeAll();
        EXPECT_EQ(mistake(), u("helo"));
        EXPECT_EQ(picture(),
                  smart ? u("a {the} fox {THE} {The} [helo]") : u("a {the} fox {the} {the} [helo]"));
        // Each change is undone by itself, and shown without being changed again.
        walk.cmdUndo();
        EXPECT_EQ(picture().left(24), smart ? u("a {the} fox {THE} [Teh] ") : u("a {the} fox {the} [Teh] "));
        walk.cmdUndo();
        EXPECT_EQ(mistake(), u("TEH"));
        walk.cmdUndo();
        EXPECT_EQ(picture(), u("a [teh] fox TEH Teh helo"));
        EXPECT_EQ(enabled(), u("CA--"));
    }
}

TEST_F(Walk, ChecksABadReplacement) {
    ASSERT_TRUE(start("zqx hte fox hte"));
    walk.cmdIgnore();
    change("xzj"); // checked anew; the first error comes again
    EXPECT_EQ(picture(), u("zqx {xzj} fox hte"));
    EXPECT_EQ(mistake(), u("zqx"));
    walk.cmdIgnoreAll();
    EXPECT_EQ(mistake(), u("xzj"));
    EXPECT_EQ(picture(), u("zqx [xzj] fox hte"));
    walk.cmdUndo();
    EXPECT_EQ(mistake(), u("hte"));
    EXPECT_EQ(picture(), u("zqx [hte] fox hte"));

    boxes.answers = {BoxAnswer::No, BoxAnswer::Yes};
    walk.setCorrection(u("xzj"));
    walk.cmdChangeAll();
    EXPECT_EQ(mistake(), u("hte"));
    walk.setCorrection(u("xzj"));
    walk.cmdChangeAll();
    const QString question =
        u("'xzj' may contain misspellings.\r\nDo you really want to change all instances of 'hte'?");
    EXPECT_EQ(said(), QStringList({question, question}));
    EXPECT_EQ(mistake(), u("xzj"));
    walk.cmdIgnore();
    EXPECT_EQ(picture(), u("zqx xzj fox {xzj}")); // the last one was changed by itself
    EXPECT_EQ(mistake(), u("(over)"));
}

TEST_F(Walk, EndsWhenTheOnlyNewErrorStandsAfterTheCaret) {
    ASSERT_TRUE(start("the hte a zqx"));
    change("the xzj"); // the new error stands after the caret's place
    EXPECT_EQ(mistake(), u("(over)"));
    EXPECT_EQ(picture(), u("the {the xzj} a zqx"));
}

TEST_F(Walk, DeletesAWordWithTheBlanksAfterIt) {
    service(error("is", "grammar", "fox", {"(omit)", "a"}, "Style"));
    ASSERT_TRUE(start("the fox is   a dog"));
    EXPECT_EQ(walk.controls().labErrorType, u("Grammar error:"));
    EXPECT_EQ(walk.controls().labErrorDescription, u("Style"));
    EXPECT_EQ(walk.controls().lstSuggestions, QStringList({u("<Omit>"), u("a")}));
    walk.cmdChange();
    EXPECT_EQ(picture(), u("the fox a dog"));
    EXPECT_EQ(mistake(), u("(over)"));
    ASSERT_TRUE(start("the fox is   a dog"));
    walk.doubleClickSuggestion(0);
    EXPECT_EQ(picture(), u("the fox a dog"));
    ASSERT_TRUE(start("the fox is a dog"));
    walk.doubleClickSuggestion(1);
    EXPECT_EQ(picture(), u("the fox {a} a dog"));
}

TEST_F(Walk, ReportsARepeatedWord) {
    service(error("fox", "grammar", "", {}, "Twice"));
    ASSERT_TRUE(start("fox"));
    EXPECT_EQ(walk.controls().lstSuggestions, QStringList(u("Twice")));
    EXPECT_EQ(enabled(), u("----"));
    setProvider(1);
    ASSERT_TRUE(start("fox zqx  ZQX   dog"));
    EXPECT_EQ(walk.controls().lstSuggestions, QStringList(u("(No spelling suggestions)")));
    EXPECT_FALSE(walk.controls().lstSuggestionsEnabled);
    EXPECT_EQ(enabled(), u("----"));
    walk.cmdIgnore();
    EXPECT_EQ(walk.controls().lstSuggestions, QStringList(u("(Repeated word)")));
    EXPECT_EQ(enabled(), u("--D-"));
    walk.setCorrection(u("the"));
    EXPECT_EQ(enabled(), u("CA--"));
    walk.setCorrection(u("ZQX"));
    EXPECT_EQ(enabled(), u("--D-"));
    walk.cmdDelete();
    EXPECT_EQ(picture(), u("fox zqx  dog"));
    EXPECT_EQ(mistake(), u("(over)"));
}

TEST_F(Walk, HoldsBackLocalSuggestions) {
    service(error("teh", "spelling", "a", {"then"}));
    ASSERT_TRUE(start("a teh fox"));
    EXPECT_EQ(walk.controls().lstSuggestions, QStringList({u("then"), u("<More...>")}));
    walk.clickSuggestion(1);
    EXPECT_EQ(walk.controls().lstSuggestions, QStringList({u("then"), u("the")}));
    EXPECT_EQ(walk.controls().txtCorrection, u("then"));
    walk.doubleClickSuggestion(1); // the second half of the same double click
    EXPECT_EQ(picture(), u("a [teh] fox"));
    walk.clickSuggestion(1);
    EXPECT_EQ(walk.controls().txtCorrection, u("the"));
    service(error("teh", "spelling", "a"));
    ASSERT_TRUE(start("a teh fox"));
    EXPECT_EQ(walk.controls().lstSuggestions, QStringList(u("the")));
    EXPECT_EQ(enabled(), u("CA--"));
}

TEST_F(Walk, ChangesTheRightPlaceOfAnErrorOutOfOrder) {
    service(error("fox", "grammar", "a", {"dog"}));
    ASSERT_TRUE(start("zqx xzj zqx a fox")); // the local error at 8 comes last
    change("the");
    change("hello");
    EXPECT_EQ(picture(), u("zqx {the} [zqx] a {hello}"));
    walk.cmdUndo();
    change("a");
    change("there");
    EXPECT_EQ(picture(), u("zqx {the} {there} a {a}"));
    EXPECT_EQ(said(), QStringList(4, u("5007 Text 'fox' cannot be found (CSpelling::findThePlace)")));
}

TEST_F(Walk, LandsChangesOfOverlappingErrorsWhereTheirWordsStand) {
    const char *text = "hello the quick brown fox";
    const auto go = [this](const char *steps) { // "c": takes the first suggestion, "i": ignores, "u": undoes
        for (const char *step = steps; *step; ++step) {
            if (*step == 'c')
                walk.doubleClickSuggestion(0);
            else
                *step == 'i' ? walk.cmdIgnore() : walk.cmdUndo();
        }
        return mistake() + u(": ") + picture();
    };
    const auto phrases = [](const char *one, const char *contextOfOne, const char *two, const char *context) {
        return error(one, "grammar", contextOfOne, {"there dog"}) +
               error(two, "suggestion", context, {"colour"});
    };
    const std::pair<const char *, const char *> nested[] = {
        {"", "brown: hello the quick [brown] fox"},
        {"c", "the quick brown fox: hello [the quick colour fox]"},
        {"cc", "(over): hello {there dog}"},
        {"ic", "(over): hello {there dog}"},
        {"cu", "brown: hello the quick [brown] fox"},
        {"ci", "(over): hello the quick colour fox"},
    };
    service(phrases("the quick brown fox", "hello", "brown", "quick"));
    for (const auto &[steps, end] : nested) {
        ASSERT_TRUE(start(text));
        EXPECT_EQ(go(steps), u(end)) << steps;
    }
    const std::pair<const char *, const char *> entwined[] = {
        {"c", "(over): hello {there dog} brown fox"}, // the other phrase has lost a word
        {"ic", "(over): hello the {colour} fox"},
    };
    service(phrases("the quick", "hello", "quick brown", "the"));
    for (const auto &[steps, end] : entwined) {
        ASSERT_TRUE(start(text));
        EXPECT_EQ(go(steps), u(end)) << steps;
    }
}

TEST_F(Walk, SaysWhereItStands) {
    ASSERT_TRUE(start("the teh\r\rhte a helo\rzqx"));
    QStringList places;
    for (; !walk.isOver(); walk.cmdIgnore())
        places += walk.controls().labPlace;
    EXPECT_EQ(places.join(u'/'), u("1 of 4, line 1/2 of 4, line 3/3 of 4, line 3/4 of 4, line 4"));
}

TEST_F(Walk, AsksBeforeItIsLeftWithChanges) {
    ASSERT_TRUE(start("a teh hte helo fox"));
    walk.cmdIgnore();
    walk.leave();
    EXPECT_TRUE(walk.bCancelled()); // nothing to be lost

    ASSERT_TRUE(start("a teh hte helo fox"));
    change("the");
    boxes.answers = {BoxAnswer::No, BoxAnswer::Yes};
    walk.leave();
    EXPECT_FALSE(walk.isOver());
    change("the");
    walk.leave();
    EXPECT_TRUE(walk.bCancelled());
    EXPECT_EQ(said(), QStringList({u("Do you really want to throw away the change that you have made?"),
                                   u("Do you really want to throw away the 2 changes that you have made?")}));
}

TEST_F(Walk, KnowsWordsForTheRestOfTheRun) {
    ASSERT_TRUE(start("a zqx fox zqx xzj"));
    walk.cmdAddForRun();
    EXPECT_EQ(mistake(), u("xzj"));
    change("zqx"); // known: not checked again
    EXPECT_EQ(mistake(), u("(over)"));
    EXPECT_EQ(walk.runWords(), QStringList(u("zqx")));
    EXPECT_FALSE(start("a zqx"));
    EXPECT_EQ(fileContents(dictionaries() + u("/persdict.dat")), "");
    ErrorWalk later(services, *this);
    EXPECT_TRUE(later.start(u("a zqx"), -1, false));
}

TEST_F(Walk, FindsSuggestionsAhead) {
    ASSERT_TRUE(start("a teh zqx helo teh"));
    dictionary(u("en_GB"), "SET UTF-8\nTRY st\n", "1\nhelos\n"); // what the second engine will know
    BackgroundWorker worker(BackgroundWorker::Thread::None);
    walk.lookAhead(worker);
    QStringList found;
    for (; !walk.isOver(); walk.cmdIgnore())
        found += walk.controls().lstSuggestions;
    EXPECT_EQ(found.join(u'/'), u("the/(No spelling suggestions)/helos/the"));
}

TEST_F(Walk, LooksAheadInAnotherThread) {
    QStringList words{u("a"), u("hte")};
    for (QChar letter = u'b'; letter <= u'z'; letter = QChar(letter.unicode() + 1))
        words += u("helo") + letter;
    BackgroundWorker worker;
    const auto engine = [this] {
        auto one = std::make_shared<HunspellEngine>();
        EXPECT_TRUE(one->init(dictionaries() + u("/en_GB.aff"), dictionaries() + u("/en_GB.dic")));
        one->Add(u("helox"));
        return one;
    };
    const std::shared_ptr<HunspellEngine> first = engine();
    qsizetype next = 0;
    QEventLoop untilFound;
    SuggestionsAhead ahead(worker, first, [&] {
        if (next == words.size())
            untilFound.quit();
        return words.value(next++);
    });
    QTimer::singleShot(0, &untilFound, [&] { ahead.goOn(); });
    QTimer::singleShot(30'000, &untilFound, &QEventLoop::quit);
    untilFound.exec();
    const std::shared_ptr<HunspellEngine> alone = engine();
    for (const QString &each : words) {
        EXPECT_TRUE(first->hasSuggestions(each)) << each.toStdString();
        EXPECT_EQ(first->suggest(each), alone->suggest(each)) << each.toStdString();
    }
}

TEST_F(Walk, TakesThousandsOfChangesAndUndoesThem) {
    const QString text = u("a") + u(" teh").repeated(15000);
    ASSERT_TRUE(walk.start(text, -1, false));
    walk.setCorrection(u("there"));
    walk.cmdChangeAll();
    EXPECT_TRUE(walk.isOver());
    EXPECT_EQ(walk.rtbText().text(), u("a") + u(" there").repeated(15000));
    ASSERT_TRUE(walk.start(text + u(" zqx"), -1, false));
    walk.cmdChangeAll();
    for (int i = 0; i < 15000; ++i)
        walk.cmdUndo();
    EXPECT_EQ(walk.rtbText().text(), text + u(" zqx"));
    EXPECT_EQ(enabled(), u("CA--"));
}

} // namespace tolvo::test
