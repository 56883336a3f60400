// SPDX-License-Identifier: MIT
#include "spelling_world.h"

#include "spelling/after_the_deadline.h"

#include <QRegularExpression>
#include <QSet>

namespace tolvo::test {

struct Case {
    const char *text;
    QByteArray reply;
    const char *errors, *boxes = ""; ///< " / " between them
};

class AfterTheDeadline_ : public SpellingWorld {
  public:
    AfterTheDeadline_() { setProvider(2); }

    /// What a check finds, or "(failure n)" or "(none)" if it doesn't get that far.
    QStringList check(const QString &text) {
        Check spelling(*this, 2);
        try {
            if (!spelling.Spell(text))
                return {u("(none)")};
        } catch (const Failure &failure) {
            return {u("(failure %1 %2)").arg(failure.number()).arg(failure.description())};
        }
        return told(spelling.SpellingErrors());
    }
    QStringList checkReply(const char *text, const QByteArray &errors) {
        service(errors);
        return check(u(text));
    }
};

TEST_F(AfterTheDeadline_, TakesWhatTheLocalDictionaryConfirms) {
    const Case cases[] = {
        {"the fox", {}, "(none)"},
        {"zqx the xzj", {}, "zqx 0-3 1 / xzj 8-11 1"}, // no errors: checked locally
        {"a teh", error("teh", "spelling", "a", {"the", "tex", "then"}), "teh 2-5 1 the,then"},
        {"a fox", error("fox", "spelling", "a", {"dog"}), "(none)"}, // the dictionary knows it
        {"a fox", error("fox", "capitalisation", "a", {"Fox", "Foxx"}), "fox 2-5 2 Fox"},
        {"a fox", error("fox", "grammar", "a", {"(omit)", "the dog"}), "fox 2-5 3 <Omit>,the dog"},
        {"a fox", error("fox", "suggestion", "a"), "fox 2-5 4"},
        {"a fox", error("fox", "Grammar", "a"), "fox 2-5 -1"},
        {"a zqx", error("zqx", "spelling", "a", {"(omit)"}), "zqx 2-5 1"}, // no word of the dictionary
        {"the fox is", error("fox", "grammar", "the", {"dog", "dog"}), "fox 4-7 3 dog"},
        // Found in the text as it is, not as the service saw it.
        {"hello ,the\rfox", error("fox", "grammar", "the", {"dog"}), "fox 11-14 3 dog"},
        // The same place twice: the second error has none.
        {"a fox", error("fox", "grammar", "a", {"dog"}) + error("fox", "suggestion", "a", {"dog"}),
         "fox 2-5 3 dog"},
        // Another context: passed over without a word.
        {"a fox the fox", error("fox", "grammar", "the"), "(none)"},
        // Once suggestions have been read, what is missing is taken from the error before.
        {"a fox the dog",
         error("fox", "grammar", "a", {"dog"}) +
             "<error><string>dog</string><precontext>the</precontext></error>",
         "fox 2-5 3 dog / dog 10-13 3"},
        // An error without suggestions.
        {"a fox",
         "<error><string>fox</string><type>grammar</type><description/><precontext>a</precontext></error>",
         "fox 2-5 3"},
        // Local errors are added between those of the service.
        {"zqx the fox xzj", error("fox", "grammar", "the"), "zqx 0-3 1 / fox 8-11 3"},
        {"zqx a teh", error("teh", "spelling", "a"), "zqx 0-3 1 / teh 6-9 1"},
        {"the fox xzj a dog", error("fox", "grammar", "the") + error("dog", "grammar", "a"),
         "fox 4-7 3 / xzj 8-11 1 / dog 14-17 3"},
        // A local misspelling that occurs twice stays at its later place alone.
        {"zqx xzj zqx a fox", error("fox", "grammar", "a"), "xzj 4-7 1 / fox 14-17 3 / zqx 8-11 1"},
        // What is wrong with a reply is said.
        {"a zqx", "<message>Too long</message>" + error("zqx", "spelling", "a"), "zqx 2-5 1",
         "5005 Too long (CSpelling::Spell)"},
        {"a fox", "<odd/>" + error("fox", "grammar", "a"), "fox 2-5 3",
         "5006 Unexpected node result 'odd (CSpelling::Spell)"},
        {"a fox", error("cat", "grammar", "a") + error("fox", "grammar", "a"), "fox 2-5 3",
         "5007 Text 'cat' cannot be found (CSpelling::findThePlace)"},
        // However often, in one box of each kind.
        {"a fox",
         (error("cat", "grammar") + "<odd/>").repeated(5000) + error("fox", "grammar", "a") +
             "<message>Too long</message>",
         "fox 2-5 3",
         "5006 Unexpected node result 'odd, and 4,999 more (CSpelling::Spell) / "
         "5007 Text 'cat' cannot be found, nor 4,999 more (CSpelling::findThePlace) / "
         "5005 Too long (CSpelling::Spell)"},
        {"a fox", error("cat", "grammar") + "<error><string>fox</string></error>",
         "(failure 91 The reply of After the Deadline holds an error without 'type')",
         "5007 Text 'cat' cannot be found (CSpelling::findThePlace)"},
        {"a fox", "<error><string>fox</string></error>",
         "(failure 91 The reply of After the Deadline holds an error without 'type')"},
        {"zqx a fox", error("fox", "grammar", "a") + error("f(ox", "grammar", "a"),
         "zqx 0-3 1 / fox 6-9 3"}, // an invalid pattern after the first suggestions
    };
    for (const Case &one : cases) {
        EXPECT_EQ(checkReply(one.text, one.reply).join(u(" / ")), u(one.errors)) << one.reply.constData();
        EXPECT_EQ(said().join(u(" / ")), u(one.boxes)) << one.reply.constData();
    }
    EXPECT_TRUE(checkReply("a fox", error("f(ox", "grammar", "a")).first().startsWith(u("(failure 5018 ")));
}

TEST_F(AfterTheDeadline_, ChecksLocallyWhenAReplyIsNoUsableXml) {
    services.atdEndpoint = u("http://service");
    const QByteArray bomb =
        "<!DOCTYPE r [<!ENTITY a \"xxxxxxxxxx\"><!ENTITY b \"&a;&a;&a;&a;&a;&a;&a;&a;\">]>"
        "<r><message>&b;</message></r>";
    QByteArray attributes; // a reader that compares each with all others takes minutes
    for (int i = 0; i < 150'000; ++i)
        attributes += " a" + QByteArray::number(i) + "=''";
    for (const QByteArray &body :
         {QByteArray(), QByteArray("<results><error>"), QByteArray("no XML"), bomb, QByteArray(3000, '<'),
          QByteArray("<a>").repeated(170'000) + QByteArray("</a>").repeated(170'000),
          "<results" + attributes + "><error/></results>"}) {
        http.reply = {200, u("OK"), body};
        EXPECT_EQ(check(u("a zqx")), QStringList(u("zqx 2-5 1"))) << body.left(40).constData();
        EXPECT_EQ(said(), QStringList());
    }
}

TEST_F(AfterTheDeadline_, SendsTheRepairedTextPercentEncoded) {
    services.atdEndpoint = u("http://service/");
    http.reply = {200, u("OK"), "<results/>"};
    const QRegularExpression expected(
        u("^http://service/checkDocument\\?key=QVKXN([0-9A-F]{32})&data=fox%2C%20a%20%26%201%2B1%3D2"
          "%20100%25%20caf%C3%A9~$"));
    QSet<QString> keys;
    for (int request = 0; request < 2; ++request) {
        EXPECT_EQ(check(u("fox ,a &\r1+1=2\t100% caf\u00e9~")), QStringList(u("caf\u00e9 20-24 1")));
        const auto match = expected.match(QString::fromLatin1(http.urls.last()));
        EXPECT_TRUE(match.hasMatch()) << http.urls.last().constData();
        keys.insert(match.captured(1));
    }
    EXPECT_EQ(keys.size(), 2);
}

TEST_F(AfterTheDeadline_, FailsInWords) {
    const QStringList silent{u("5007 After the Deadline did not respond. Please try again later' "
                               "(CSpelling::Spell)")};
    EXPECT_EQ(check(u("a zqx")), QStringList(u("(none)"))); // without an endpoint nobody is asked
    EXPECT_EQ(said(), silent);
    EXPECT_EQ(http.urls.size(), 0);
    services.atdEndpoint = u("http://service");
    http.reply = {0, u("timed out"), {}};
    EXPECT_EQ(check(u("a zqx")), QStringList(u("(none)")));
    EXPECT_EQ(said(), silent);
    http.reply = {500, u("Out of order"), "oops"};
    EXPECT_EQ(check(u("a zqx")), QStringList(u("(failure 5012 Out of order)")));
    http.reply = {503, {}, "oops"};
    EXPECT_EQ(check(u("a zqx")), QStringList(u("(failure 5012 HTTP status 503)")));
    http.reply = {0, {}, {}, true};
    EXPECT_EQ(check(u("a zqx")), QStringList(u("(failure 18 The check was cancelled)")));
    EXPECT_EQ(said(), QStringList());
}

} // namespace tolvo::test
