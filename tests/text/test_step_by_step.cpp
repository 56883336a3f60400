// SPDX-License-Identifier: MIT
// The engine against the same tools done step by step, on short random texts made of what the rules look at.
#include "base/failure.h"
#include "tests/text/engine.h"
#include "tests/text/step_by_step.h"

#include <random>

using namespace tolvo;
using namespace tolvo::test;

namespace {

class StepByStep : public Engine {
  protected:
    StepByStep() { engine.setTopLevelDomains(QStringLiteral(",com,org,")); }

    /// Calls `check(text)` for random texts put together from the pieces.
    template <class Check>
    void eachText(const QStringList &pieces, int times, Check check) {
        std::mt19937 random(20240229);
        for (int i = 0; i < times && !HasFailure(); ++i) {
            QString text;
            for (unsigned length = random() % 14; length > 0; --length)
                text += pieces[static_cast<qsizetype>(random() % static_cast<unsigned>(pieces.size()))];
            SCOPED_TRACE(testing::PrintToString(text));
            check(text);
        }
    }

    static QStringList pieces(const char16_t *list) {
        QStringList result = QString::fromUtf16(list).split(u'~');
        return result << QStringLiteral("\r\n") << QStringLiteral(" ");
    }
};

constexpr auto prose =
    u"a~i~I~Is~mc~Mc~O'~s~t~re~S~.~.~.~...~…~?~!~:~;~,~'~'~\"~-~(~)~(s)~()~[~]~{~1~2~x.com~b.txt~www.~/"
    u"~\\~@~\t~"
    u" ~ ~  ~\u00A0~\r~\n~é~ƒ~ß~ÿ~µ~the~with~non-~ante-~under-~anti~and~with and without~*~|~ж";

TEST_F(StepByStep, sentencesAndWords) {
    eachText(pieces(prose), 3000, [this](const QString &text) {
        const qsizetype size = text.size();
        EXPECT_EQ(engine.SentenceCase(text), stepByStep::SentenceCase(text));
        EXPECT_EQ(engine.Capitalise(text, false), stepByStep::Capitalise(text, false));
        for (const qsizetype start : {qsizetype{0}, size / 3, size / 2}) {
            const qsizetype length = size - start - size / 5;
            EXPECT_EQ(engine.InitialCaps(text, start + 1, length),
                      stepByStep::InitialCaps(text, start + 1, length));
            EXPECT_EQ(engine.TitleCase(text, start, length), stepByStep::TitleCase(text, start, length))
                << start;
        }
    });
}

TEST_F(StepByStep, punctuationAndQuotes) {
    eachText(pieces(prose), 3000, [this](const QString &text) {
        EXPECT_EQ(engine.checkPunctuation(text, true), stepByStep::checkPunctuation(text));
        EXPECT_EQ(engine.CurlyQuotes(text), stepByStep::CurlyQuotes(text));
    });
}

TEST_F(StepByStep, spacing) {
    eachText(pieces(u" ~  ~\t~\u00A0~a~b~\r~\n~ \r\n"), 3000, [this](const QString &text) {
        EXPECT_EQ(engine.SingleSpace(text), stepByStep::SingleSpace(text));
        for (const bool single : {false, true}) {
            for (const bool multiple : {false, true})
                EXPECT_EQ(engine.removeExtraLines(text, single, multiple),
                          stepByStep::removeExtraLines(text, single, multiple));
        }
    });
}

TEST_F(StepByStep, entities) {
    const auto list = u"&#~&#~&~#~x~X~;~;~;~0~6~65~233~8212~65281~f~FFFFF~zz~a~&amp;~&AMP;~amp;~lt;~quot;~&"
                      u"gt;~&bull;~&dagger;~&DAGGER;~&Dagger;";
    eachText(pieces(list), 3000, [this](const QString &text) {
        QString expected;
        try {
            expected = stepByStep::HTMLdecode(text);
        } catch (const Failure &) {
            EXPECT_THROW((void)engine.HTMLdecode(text), Failure);
            return;
        }
        EXPECT_EQ(engine.HTMLdecode(text), expected);
    });
}

} // namespace
