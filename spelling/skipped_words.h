// SPDX-License-Identifier: MIT
// Words that the user doesn't want checked, by the way they are typed.
#pragma once

#include "preferences/options.h"
#include "text/word_rules.h"

#include <QStringView>
#include <optional>

namespace tolvo {

class SettingsStore;
class cTextMethods;

class SkippedWords {
  public:
    /// Skips nothing.
    SkippedWords() = default;
    /// `domains` has the form of text/top_level_domains.h.
    SkippedWords(const TypedTextOptions &options, const AddressRules &addresses, const QString &domains);

    /// Whether a word of the text is skipped, by what it touches: "file" in "file.txt", "ab" in "ab12". Its
    /// place counts from 0.
    [[nodiscard]] bool skips(QStringView text, qsizetype start, qsizetype length) const;

  private:
    [[nodiscard]] bool isAddress(QStringView run) const;

    TypedTextOptions m_options;
    std::optional<AddressRules> m_addresses;
    WordList m_domains;
};

/// What the options of a user leave out.
[[nodiscard]] SkippedWords skippedWords(const SettingsStore &store, const cTextMethods &textMethods);

} // namespace tolvo
