// SPDX-License-Identifier: MIT
#include "text/line_choice.h"

#include "base/case_folding.h"
#include "text/line_list.h"

#include <QHash>

namespace tolvo {

namespace {

/// Lines of which those that are alike count as one.
class Alike {
  public:
    explicit Alike(const DuplicateSettings &settings) : m_settings(settings) {}

    void add(QStringView line) {
        if (m_settings.leaveBlanks && trimWhiteSpace(line).isEmpty()) {
            m_entries += {line, 0};
            if (m_settings.neighbours)
                m_places.clear();
            return;
        }
        const QString key = keyOf(line);
        const auto known = m_places.constFind(key);
        if (known == m_places.constEnd()) {
            if (m_settings.neighbours)
                m_places.clear();
            m_places.insert(key, m_entries.size());
            m_entries += {line, 1};
            return;
        }
        Entry &entry = m_entries[*known];
        if (m_settings.keepLast)
            moveHere(entry, key, line);
        else
            ++entry.count;
    }
    [[nodiscard]] QStringList lines() const {
        QStringList lines;
        for (const Entry &entry : m_entries) {
            if (entry.count == gone)
                continue;
            const bool counted = m_settings.counts && entry.count > 0;
            QString line = counted ? QString::number(entry.count) + u'	' : QString();
            lines += line.append(entry.line);
        }
        return lines;
    }

  private:
    static constexpr int gone = -1;
    struct Entry {
        QStringView line;
        int count; ///< 0: a blank line that is left alone
    };

    [[nodiscard]] QString keyOf(QStringView line) const {
        QString key = line.toString();
        if (m_settings.ignoreBlanks)
            key = key.simplified();
        return m_settings.ignoreCase ? caseFolded(key) : key;
    }
    void moveHere(Entry &entry, const QString &key, QStringView line) {
        const int count = entry.count + 1;
        entry.count = gone;
        m_places[key] = m_entries.size();
        m_entries += {line, count};
    }

    const DuplicateSettings &m_settings;
    QHash<QString, qsizetype> m_places;
    QList<Entry> m_entries;
};

} // namespace

QString withoutDuplicates(QStringView text, const DuplicateSettings &settings) {
    const LineList list(text);
    Alike alike(settings);
    for (const QStringView line : list.lines)
        alike.add(line);
    return list.joined(alike.lines());
}

QString everyLine(QStringView text, const EveryLineSettings &settings) {
    const LineList list(text);
    const qsizetype first = settings.first - qsizetype{1};
    QList<QStringView> chosen;
    for (qsizetype i = 0; i < list.lines.size(); ++i) {
        const bool isOne = i >= first && (i - first) % settings.every == 0;
        if (isOne != settings.drop)
            chosen += list.lines.at(i);
    }
    return list.joined(chosen);
}

} // namespace tolvo
