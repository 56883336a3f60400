// SPDX-License-Identifier: MIT
#include "shell/headless/HeadlessSession.h"

#include "preferences/options.h"

namespace tolvo {

HeadlessSession::HeadlessSession(SettingsStore &store, const Catalogue &catalogue,
                                 FileExtensions &fileExtensions, MessageBoxes &boxes,
                                 HeadlessWindows &windows, const QString &dataFolder, int capacity)
    : txtText1(capacity), txtTextWW(capacity),
      oPBMethods(store, catalogue, boxes), m_spelling{.store = store,
                                                      .boxes = boxes,
                                                      .http = m_network,
                                                      .word = m_word,
                                                      .dataFolder = dataFolder,
                                                      .userFolder = {},
                                                      .atdEndpoint = {}},
      session({.store = store,
               .clipboard = clipboard,
               .boxes = boxes,
               .sound = sound,
               .clock = clock,
               .extensions = fileExtensions,
               .oTools = catalogue,
               .oPowerButtons = oPowerButtons,
               .oPBMethods = oPBMethods,
               .view = windows,
               .dialogs = windows,
               .spelling = m_spelling},
              txtText1, txtTextWW) {
    for (int number = 1; number <= CPowerButtonCollection::buttonCount; ++number)
        oPowerButtons.Add(std::make_shared<CPowerButton>(), number);
    session.useWordOptions(loadWordOptions(store));
}

} // namespace tolvo
