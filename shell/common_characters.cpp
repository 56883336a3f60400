// SPDX-License-Identifier: MIT
#include "shell/common_parts.h"

#include <algorithm>
#include <vector>

namespace tolvo {

namespace {

/// Myers' greedy algorithm, with all that it has reached kept for the way back. Diagonal k holds the places
/// x, y with x - y = k.
class ShortDifference {
  public:
    ShortDifference(QStringView before, QStringView after) : m_before(before), m_after(after) {}

    QList<CommonPart> commonParts(int &workLeft, int mostEdits) {
        const qsizetype last = m_before.size() - m_after.size();
        if (std::abs(last) > mostEdits)
            return {};
        for (int edits = 0; edits <= mostEdits && workLeft > 0; ++edits) {
            reachOut(edits, workLeft);
            const bool passesEnd = std::abs(last) <= edits && (last + edits) % 2 == 0;
            if (passesEnd && reached(edits, static_cast<int>(last)) >= m_before.size())
                return wayBack(edits, static_cast<int>(last));
        }
        return {};
    }

  private:
    [[nodiscard]] qsizetype reached(int edits, int diagonal) const {
        return m_reached[static_cast<std::size_t>(edits)][static_cast<std::size_t>((diagonal + edits) / 2)];
    }
    /// Whether the last edit on the way puts a character in; otherwise it takes one out.
    [[nodiscard]] bool putsIn(int edits, int diagonal) const {
        return diagonal == -edits ||
               (diagonal != edits && reached(edits - 1, diagonal - 1) < reached(edits - 1, diagonal + 1));
    }
    /// Where the equal characters after the last edit begin.
    [[nodiscard]] qsizetype start(int edits, int diagonal) const {
        if (edits == 0)
            return 0;
        return putsIn(edits, diagonal) ? reached(edits - 1, diagonal + 1)
                                       : reached(edits - 1, diagonal - 1) + 1;
    }
    void reachOut(int edits, int &workLeft) {
        std::vector<qsizetype> row;
        for (int diagonal = -edits; diagonal <= edits; diagonal += 2) {
            const qsizetype from = start(edits, diagonal);
            qsizetype x = from;
            while (x < m_before.size() && x - diagonal < m_after.size() &&
                   m_before[x] == m_after[x - diagonal])
                ++x;
            workLeft -= static_cast<int>(x - from) + 1;
            row.push_back(x);
        }
        m_reached.push_back(std::move(row));
    }
    [[nodiscard]] QList<CommonPart> wayBack(int edits, int diagonal) const {
        QList<CommonPart> parts;
        for (;; --edits) {
            const qsizetype from = start(edits, diagonal);
            if (const qsizetype length = reached(edits, diagonal) - from; length > 0)
                parts += {from, from - diagonal, length};
            if (edits == 0)
                break;
            diagonal += putsIn(edits, diagonal) ? 1 : -1;
        }
        std::reverse(parts.begin(), parts.end());
        return parts;
    }

    QStringView m_before;
    QStringView m_after;
    std::vector<std::vector<qsizetype>> m_reached; ///< by number of edits: how far in `before`, by diagonal
};

} // namespace

QList<CommonPart> commonCharacters(QStringView before, QStringView after, int &workLeft, int mostEdits) {
    return ShortDifference(before, after).commonParts(workLeft, mostEdits);
}

} // namespace tolvo
