// SPDX-License-Identifier: MIT
#include "spelling/language_guess.h"

#include "spelling/hunspell_engine.h"
#include "spelling/language_names.h"
#include "spelling/word_finder.h"

#include <QFileInfo>
#include <QHash>
#include <algorithm>
#include <array>
#include <optional>
#include <unicode/uscript.h>

namespace tolvo {

namespace {

constexpr qsizetype pieces = 8;
constexpr qsizetype pieceLength = 250;
constexpr int fewestWords = 8;
constexpr double mostUnknown = 0.35;   ///< of the words, in the best language
constexpr double leastDistance = 0.15; ///< between the shares of the best language and the next one

/// The script of most letters of a sample.
UScriptCode scriptOf(const QString &sample) {
    QHash<int, int> counts;
    for (const uint character : sample.toUcs4()) {
        UErrorCode error = U_ZERO_ERROR;
        const UScriptCode script = uscript_getScript(static_cast<UChar32>(character), &error);
        if (U_SUCCESS(error) && script > USCRIPT_INHERITED) // not what all scripts share
            ++counts[script];
    }
    int best = USCRIPT_COMMON;
    for (auto count = counts.cbegin(); count != counts.cend(); ++count) {
        if (*count > counts.value(best))
            best = count.key();
    }
    return static_cast<UScriptCode>(best);
}

/// Whether a locale is written in a script, or nobody knows in which.
bool mayWrite(const QString &locale, UScriptCode script) {
    std::array<UScriptCode, 8> scripts{};
    UErrorCode error = U_ZERO_ERROR;
    const QByteArray id = QString(locale).replace(u'-', u'_').toUtf8();
    const int count = uscript_getCode(id.constData(), scripts.data(), int(scripts.size()), &error);
    if (U_FAILURE(error) || count == 0)
        return true;
    return std::find(scripts.begin(), scripts.begin() + count, script) != scripts.begin() + count;
}

/// The share of unknown words, 0 to 1; nothing if there are too few words or no dictionary.
std::optional<double> unknownShare(const QString &sample, const GuessedLanguage &language) {
    HunspellEngine engine;
    if (!engine.init(language.files.aff, language.files.dic))
        return std::nullopt;
    WordFinder words(wordRulesOf(language.locale, true), engine.wordCharacters());
    int count = 0;
    int unknown = 0;
    qsizetype end = 0;
    for (FoundWord word = words.next(sample, 0); word.length > 0; word = words.next(sample, end)) {
        end = word.start + word.length;
        ++count;
        unknown += engine.Spell(QStringView(sample).sliced(word.start, word.length)) ? 0 : 1;
    }
    return count < fewestWords ? std::nullopt : std::optional(double(unknown) / count);
}

} // namespace

QString sampleOf(QStringView text) {
    if (text.size() <= pieces * pieceLength)
        return text.toString();
    const auto isSpace = [](QChar unit) { return unit.isSpace(); };
    QString sample;
    for (qsizetype piece = 0; piece < pieces; ++piece) {
        const QStringView part = text.sliced((text.size() - pieceLength) * piece / (pieces - 1), pieceLength);
        // A word that is cut is no word.
        const auto first = std::find_if(part.begin(), part.end(), isSpace);
        const auto last = std::find_if(part.rbegin(), part.rend(), isSpace).base();
        if (first < last)
            sample += part.sliced(first - part.begin(), last - first);
        sample += u' ';
    }
    return sample;
}

QString guessLanguage(const QString &sample, const QList<GuessedLanguage> &languages,
                      const std::function<bool()> &cancelled) {
    const UScriptCode script = scriptOf(sample);
    QHash<QString, std::optional<double>> shareOfFile; // many locales share one
    QHash<QString, double> best;                       // by language
    QString guess;
    double guessed = 1;
    for (const GuessedLanguage &language : languages) {
        if (cancelled())
            return {};
        if (!mayWrite(language.locale, script))
            continue;
        const QString file = QFileInfo(language.files.dic).canonicalFilePath();
        if (!shareOfFile.contains(file))
            shareOfFile.insert(file, unknownShare(sample, language));
        const std::optional<double> share = shareOfFile.value(file);
        if (!share)
            continue;
        double &ofLanguage = best.insert(languageOf(language.locale),
                                         std::min(*share, best.value(languageOf(language.locale), 1)))
                                 .value();
        if (ofLanguage < guessed) {
            guessed = ofLanguage;
            guess = language.locale;
        }
    }
    const auto isNear = [&](const auto &other) {
        return other.first != languageOf(guess) && other.second < guessed + leastDistance;
    };
    const auto all = best.asKeyValueRange();
    const bool clear = guessed <= mostUnknown && std::none_of(all.begin(), all.end(), isNear);
    return clear ? guess : QString();
}

} // namespace tolvo
