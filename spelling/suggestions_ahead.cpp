// SPDX-License-Identifier: MIT
#include "spelling/suggestions_ahead.h"

#include <optional>
#include <utility>

namespace tolvo {

SuggestionsAhead::SuggestionsAhead(BackgroundWorker &worker, std::shared_ptr<HunspellEngine> engine,
                                   std::function<QString()> nextWord)
    : m_engine(std::move(engine)), m_nextWord(std::move(nextWord)),
      m_twin(std::make_shared<HunspellEngine>()), m_job(worker) {
}

void SuggestionsAhead::goOn() {
    if (m_looking)
        return;
    const QString word = m_nextWord();
    if (word.isEmpty())
        return;
    m_looking = true;
    const auto look = [twin = m_twin, recipe = m_engine->recipe(),
                       word](const Cancellation &) -> std::optional<QString> {
        if (!twin->isLoaded() && !twin->init(recipe))
            return std::nullopt;
        return twin->suggest(word);
    };
    m_job.start(look, [this, word](const std::optional<QString> &found) {
        if (!found)
            return; // nothing will be found for other words either
        m_engine->keepSuggestions(word, *found);
        m_looking = false;
        goOn();
    });
}

} // namespace tolvo
