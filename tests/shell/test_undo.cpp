// SPDX-License-Identifier: MIT
#include "tests/support/User.h"

#include <random>

using namespace tolvo;
using namespace tolvo::test;

namespace {

TEST(Undo, saysWhereItsBuffersEnd) {
    User user("a");
    user.session.cmdUndo_Click();
    user.sees("«»a", "Reached end of Undo buffer");
    user.session.cmdRedo_Click();
    user.sees("«»a", "Reached end of Redo buffer");
    EXPECT_EQ(user.headless.sound.beeps, 2);
    EXPECT_FALSE(user.session.bDirty());
    user.session.bSounds = false;
    user.session.cmdUndo_Click();
    EXPECT_EQ(user.headless.sound.beeps, 2);
}

/// What a history must know, kept without one: the texts that stood there, the states among them, where the
/// user is, where each undo began that was not retraced, and states that new changes have led away from.
struct Told {
    QStringList texts;
    QList<bool> isState;
    int at = 0;
    QList<int> ahead;
    QStringList lost;

    [[nodiscard]] int state(int from) const { return static_cast<int>(isState.lastIndexOf(true, from)); }
    [[nodiscard]] bool changed() const { return texts[at] != texts[state(at)]; }
    void change(const QString &text) {
        if (text == texts[at])
            return;
        for (int i = static_cast<int>(texts.size()) - 1; i > at; --i) {
            if (isState[i])
                lost.prepend(texts[i]);
        }
        texts = texts.mid(0, at + 1) << text;
        isState = isState.mid(0, at + 1) << false;
        ahead.clear();
        ++at;
    }
    void push() {
        if (!changed())
            return;
        isState[at] = true;
        if (ahead.isEmpty())
            lost.clear();
    }
    void undo(int to) {
        if (to < 0)
            return;
        ahead += at;
        at = to;
    }
    void undoState() {
        const int here = state(at);
        const int target = changed() ? here : here > 0 ? state(here - 1) : -1;
        push();
        undo(target);
    }
    void goTo(int place) {
        if (place < at)
            return undo(place);
        while (!ahead.isEmpty() && ahead.last() <= place)
            ahead.removeLast();
        at = place;
    }
    void redo(const std::function<bool()> &mayDiscard) {
        if (!ahead.isEmpty()) {
            at = ahead.takeLast();
        } else if (!lost.isEmpty() && (!changed() || mayDiscard())) {
            const QString text = lost.takeFirst();
            change(text);
            isState[at] = true;
        }
    }
};

/// A user who does anything at random.
class Wanderer : public User {
  public:
    explicit Wanderer(unsigned seed) : User("one two«»"), m_random(seed) {
        told.texts << text();
        told.isState << true;
    }
    [[nodiscard]] QString text() { return session.txtCurrent().Text(); }
    int upTo(int last) { return std::uniform_int_distribution<int>(0, last)(m_random); }

    void doesSomething() {
        const int what = upTo(21);
        if (upTo(2) == 0)
            select(session.txtCurrent(), upTo(12), upTo(3) == 0 ? upTo(8) : 0);
        if (what < 6)
            edits(what);
        else if (what < 9)
            quickEdit();
        else if (what < 12)
            tool(QStringList{"ccUPP", "ccREV", "foTRA", "ccLOW"}[upTo(3)]);
        else if (what < 15)
            presses('Z'), told.undo(told.at - 1);
        else if (what < 17)
            session.cmdUndo_Click(), told.undoState();
        else if (what < 20)
            redoes();
        else
            goesToEntry();
        EXPECT_EQ(text(), told.texts[told.at]);
        EXPECT_TRUE(canRedo || (told.ahead.isEmpty() && told.lost.isEmpty()));
    }
    Told told;

  private:
    void edits(int what) {
        if (what == 0) {
            headless.clipboard.text = QString("new %1").arg(upTo(3));
            session.cmdRefresh_Click();
            told.push();
        } else if (what == 1) {
            session.imgWordwrap_Click();
        } else {
            waits(3000);
            what == 2 ? pastes("p|") : types(what == 3 ? QString() : QString(QChar(u'a' + upTo(3))));
        }
        told.change(text());
    }
    void quickEdit() {
        const char key = "ULSKT"[upTo(4)];
        TextBox &box = session.txtCurrent();
        const bool whole = key == 'K' && box.SelLength() == 0 && box.SelStart() == box.length();
        const bool isState = key != 'T' && (whole ? box.length() : box.SelLength()) > 3;
        presses(key);
        if (isState)
            told.push();
        told.change(text());
        if (isState)
            told.push();
    }
    void tool(const QString &token) {
        runs(token);
        told.push();
        told.change(text());
        told.push();
    }
    void goesToEntry() {
        const auto entries = upTo(1) ? session.historyBehind() : session.historyAhead();
        if (entries.isEmpty())
            return;
        const int place = entries[upTo(static_cast<int>(entries.size()) - 1)].place;
        session.goInHistory(place);
        told.goTo(place);
    }
    void redoes() {
        const BoxAnswer answer = upTo(1) ? BoxAnswer::Yes : BoxAnswer::No;
        boxes.answers = {answer};
        session.cmdRedo_Click();
        told.redo([&] {
            isTold("Changes have been made to the text");
            return answer == BoxAnswer::Yes;
        });
    }

    std::mt19937 m_random;
};

TEST(Undo, keepsEveryTextInReachOnTenThousandWalks) {
    for (unsigned seed = 1; seed <= 10000 && !HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        Wanderer user(seed);
        for (int steps = user.upTo(24); steps >= 0 && !HasFailure(); --steps)
            user.doesSomething();
        while (!user.told.ahead.isEmpty()) {
            user.session.cmdRedo_Click();
            user.told.redo([] { return false; });
        }
        QStringList back{user.text()};
        while (user.presses('Z'), user.session.labStatus().isEmpty())
            back.prepend(user.text());
        EXPECT_EQ(back, user.told.texts);
        for (const QString &text : back.mid(1)) {
            user.presses('Y');
            EXPECT_EQ(user.text(), text);
        }
    }
}

} // namespace
