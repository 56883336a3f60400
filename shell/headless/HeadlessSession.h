// SPDX-License-Identifier: MIT
// A whole session without a window, over a store and a catalogue that others may share.
#pragma once

#include "platform/headless/MemoryClipboard.h"
#include "platform/headless/MemoryTextBox.h"
#include "platform/headless/SilentSound.h"
#include "platform/headless/StandingClock.h"
#include "platform/http_client.h"
#include "powerbuttons/CPowerButtonMethods.h"
#include "shell/frmMain.h"
#include "shell/headless/HeadlessWindows.h"
#include "spelling/word_automation.h"

namespace tolvo {

/// A network that never answers.
class NoNetwork final : public HttpClient {
  public:
    HttpReply get(const QByteArray &) override { return {}; }
    HttpReply post(const QByteArray &, const QByteArray &, const QByteArray &) override { return {}; }
};

/// What a session is built on, and the session. Its PowerButtons are empty.
class HeadlessSession {
  public:
    /// `boxes` and `windows` hear what the session says; `capacity` is that of the text box.
    HeadlessSession(SettingsStore &store, const Catalogue &catalogue, FileExtensions &fileExtensions,
                    MessageBoxes &boxes, HeadlessWindows &windows, const QString &dataFolder,
                    int capacity = textLimit);

    MemoryTextBox txtText1;
    MemoryTextBox txtTextWW;
    MemoryClipboard clipboard;
    SilentSound sound;
    StandingClock clock;
    CPowerButtonCollection oPowerButtons;
    CPowerButtonMethods oPBMethods;

  private:
    NoNetwork m_network;
    NoWordAutomation m_word;
    SpellingServices m_spelling;

  public:
    frmMain session;
};

} // namespace tolvo
