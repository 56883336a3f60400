// SPDX-License-Identifier: MIT
#include "platform/desktop/CommandKeys.h"
#include "platform/desktop/clipboard_ways.h"
#include "platform/desktop/keyboard_layout.h"
#include "platform/desktop/windows/OpenClipboard.h"
#include "platform/desktop/windows/WindowsTextTransfer.h"
#include "platform/desktop/windows/system_text.h"
#include "tests/support/failures.h"

#include <QKeyEvent>
#include <atomic>
#include <thread>

using namespace Qt::StringLiterals;

namespace tolvo {
namespace {

/// Another window, in a thread of its own, that holds the clipboard open for a time.
class Holder {
  public:
    explicit Holder(DWORD milliseconds) : m_thread([this, milliseconds] { hold(milliseconds); }) {
        while (!m_holds)
            Sleep(1);
    }
    ~Holder() { m_thread.join(); }
    Holder(const Holder &) = delete;
    Holder &operator=(const Holder &) = delete;

  private:
    void hold(DWORD milliseconds) {
        const HWND window =
            CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
        {
            const OpenClipboard clipboard(window, 1000);
            m_holds = true;
            Sleep(milliseconds);
        }
        DestroyWindow(window);
    }

    std::atomic<bool> m_holds = false;
    std::thread m_thread;
};

QString systemText() {
    WindowsTextTransfer transfer;
    return transfer.advance(1000) ? transfer.text() : u"held"_s;
}

TEST(WindowsClipboard, KeepsATextAsItStands) {
    for (const QString &text : {u"a\r\nb\nc\r"_s, u"\u0141\U0001F600"_s, QString(100'000, u'x'), QString()}) {
        putSystemText(text, 1000);
        EXPECT_EQ(systemText(), text);
    }
}

TEST(WindowsClipboard, IsTriedAgainWhileAnotherProgramHoldsItOpen) {
    putSystemText(u"before"_s, 1000);
    {
        const Holder holder(400);
        WindowsTextTransfer transfer;
        EXPECT_FALSE(transfer.advance(50));
        expectFailure(
            clipboardNotOpened, [] { putSystemText(u"late"_s, 50); }, u"holding the clipboard open"_s);
        EXPECT_TRUE(transfer.advance(5000));
        EXPECT_EQ(transfer.text(), u"before"_s);
    }
    const Holder holder(200);
    putSystemText(u"after"_s, 5000);
    EXPECT_EQ(systemText(), u"after"_s);
}

TEST(WindowsKeyboard, TypesWithAltGrWhatIsNotTheCharacterOfTheKey) {
    const struct {
        int key;
        QString text;
        bool holds;
    } rows[] = {{Qt::Key_Z, u"z"_s, false}, {Qt::Key_1, u"1"_s, false}, {Qt::Key_Z, u"\u017C"_s, true},
                {Qt::Key_Q, u"@"_s, true},  {0x7B, u"{"_s, true},       {Qt::Key_Z, QString(), true}};
    for (const auto &[key, text, holds] : rows) {
        const QKeyEvent event(QEvent::KeyPress, key, Qt::ControlModifier | Qt::AltModifier, text);
        EXPECT_EQ(holdsAltGr(event), holds) << key;
    }
}

TEST(WindowsKeyboard, HasTheDigitsInARow) {
    // The keys of Escape, 1, 8, 9 and 0.
    for (const auto &[scanCode, digit] : {std::pair{1U, 0}, {2U, 1}, {9U, 8}, {10U, 9}, {11U, 0}})
        EXPECT_EQ(digitOfKey(scanCode), digit) << scanCode;
}

} // namespace
} // namespace tolvo
