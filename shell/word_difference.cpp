// SPDX-License-Identifier: MIT
#include "shell/word_difference.h"

#include "shell/common_parts.h"
#include "text/lines.h"

#include <QHash>
#include <QStringBuilder>
#include <optional>
#include <vector>

namespace tolvo {

namespace {

/// The words of a text, and its other characters one by one; a line end is one.
class Words {
  public:
    explicit Words(QStringView text) : m_text(text) {
        for (qsizetype at = 0; at < text.size();) {
            m_starts.push_back(at);
            at = text.sliced(at).startsWith(lineEnd) ? at + lineEnd.size()
                                                     : endOfToken(text, at, Tokens::Words);
        }
        m_starts.push_back(text.size());
    }

    [[nodiscard]] qsizetype count() const { return static_cast<qsizetype>(m_starts.size()) - 1; }
    [[nodiscard]] QStringView piece(qsizetype first, qsizetype length) const {
        const qsizetype start = m_starts[static_cast<std::size_t>(first)];
        return m_text.sliced(start, m_starts[static_cast<std::size_t>(first + length)] - start);
    }

  private:
    QStringView m_text;
    std::vector<qsizetype> m_starts;
};

/// A character for each word, the same for the same words, so that words can be compared as characters are.
class Alphabet {
  public:
    /// Nothing if there are more words than characters.
    [[nodiscard]] std::optional<QString> spelled(const Words &words) {
        constexpr qsizetype most = 0xFFFF;
        QString result(words.count(), Qt::Uninitialized);
        for (qsizetype i = 0; i < words.count(); ++i) {
            const QStringView word = words.piece(i, 1);
            const auto known = m_known.constFind(word);
            const auto character =
                known == m_known.constEnd() ? static_cast<char16_t>(m_known.size()) : *known;
            if (known == m_known.constEnd())
                m_known.insert(word, character);
            if (m_known.size() > most)
                return std::nullopt;
            result[i] = QChar(character);
        }
        return result;
    }

  private:
    QHash<QStringView, char16_t> m_known;
};

class WordDifference {
  public:
    QString of(QStringView before, QStringView after) {
        compareBy(Tokens::Lines, before, after);
        addCommon({});
        return m_result;
    }

  private:
    /// Compares what is left between the lines, or the words, that occur once in both.
    void compareBy(Tokens tokens, QStringView before, QStringView after) {
        if (before == after)
            return addCommon(after);
        const auto compareRest = [&](QStringView oldRest, QStringView rest) {
            if (tokens == Tokens::Lines)
                compareBy(Tokens::Words, oldRest, rest);
            else
                compare(oldRest, rest);
        };
        qsizetype oldAt = 0;
        qsizetype at = 0;
        for (const CommonPart &part : commonTokens(before, after, tokens)) {
            compareRest(before.sliced(oldAt, part.oldStart - oldAt), after.sliced(at, part.start - at));
            addCommon(after.sliced(part.start, part.length));
            oldAt = part.oldStart + part.length;
            at = part.start + part.length;
        }
        compareRest(before.sliced(oldAt), after.sliced(at));
    }

    void compare(QStringView before, QStringView after) {
        if (before == after)
            return addCommon(after);
        const Words oldWords(before);
        const Words words(after);
        Alphabet alphabet;
        const auto oldSpelled = alphabet.spelled(oldWords);
        const auto spelled = oldSpelled ? alphabet.spelled(words) : std::nullopt;
        qsizetype oldAt = 0;
        qsizetype at = 0;
        for (const CommonPart &part : spelled ? commonWords(*oldSpelled, *spelled) : QList<CommonPart>()) {
            m_removed += oldWords.piece(oldAt, part.oldStart - oldAt);
            m_added += words.piece(at, part.start - at);
            addCommon(words.piece(part.start, part.length));
            oldAt = part.oldStart + part.length;
            at = part.start + part.length;
        }
        m_removed += oldWords.piece(oldAt, oldWords.count() - oldAt);
        m_added += words.piece(at, words.count() - at);
    }

    [[nodiscard]] QList<CommonPart> commonWords(QStringView before, QStringView after) {
        constexpr int mostEdits = 1000;
        const qsizetype front = equalFront(before, after);
        const qsizetype back = equalBack(before.sliced(front), after.sliced(front));
        QList<CommonPart> parts;
        if (front > 0)
            parts += {0, 0, front};
        for (CommonPart part : commonCharacters(before.sliced(front).chopped(back),
                                                after.sliced(front).chopped(back), m_workLeft, mostEdits))
            parts += {part.oldStart + front, part.start + front, part.length};
        if (back > 0)
            parts += {before.size() - back, after.size() - back, back};
        return parts;
    }

    /// What has changed comes first.
    void addCommon(QStringView text) {
        if (!m_removed.isEmpty())
            m_result += u"[-" % m_removed % u"-]";
        if (!m_added.isEmpty())
            m_result += u"{+" % m_added % u"+}";
        m_removed.clear();
        m_added.clear();
        m_result += text;
    }

    QString m_removed; ///< what has changed since the last common word
    QString m_added;
    int m_workLeft = 20'000'000;
    QString m_result;
};

} // namespace

QString wordDifference(QStringView before, QStringView after) {
    return WordDifference().of(before, after);
}

} // namespace tolvo
