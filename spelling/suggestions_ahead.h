// SPDX-License-Identifier: MIT
#pragma once

#include "platform/background_job.h"
#include "spelling/hunspell_engine.h"

#include <QString>
#include <functional>
#include <memory>

namespace tolvo {

/// Finds suggestions before they are asked for: word by word in the background, in a second engine, since
/// one engine serves one thread. The first engine then has them at hand.
class SuggestionsAhead {
  public:
    /// `nextWord` names the word to look at next, asked for in this thread; empty if there is none.
    SuggestionsAhead(BackgroundWorker &worker, std::shared_ptr<HunspellEngine> engine,
                     std::function<QString()> nextWord);

    /// To be called when there may be new words.
    void goOn();

  private:
    std::shared_ptr<HunspellEngine> m_engine;
    std::function<QString()> m_nextWord;
    std::shared_ptr<HunspellEngine> m_twin; ///< loaded and used in the other thread alone
    bool m_looking = false;
    BackgroundJob m_job;
};

} // namespace tolvo
