// SPDX-License-Identifier: MIT
// What the fuzz targets of the search share: a search over a text box in memory, and texts from raw bytes.
#pragma once

#include "platform/headless/ConsoleBoxes.h"
#include "platform/headless/MemoryTextBox.h"
#include "search/CSearch.h"

#include <cstdint>
#include <cstdlib>

namespace tolvo::fuzz {

struct NoResults : SearchResults {
    void clear() override {}
    void add(const QString &, qint32) override {}
    void setCaption(const QString &) override {}
    void show() override {}
};

struct Silence : TextHost {
    void setStatus(const QString &) override {}
    void warn(const QString &, const QString &) override {}
};

struct World : SearchHost {
    TextBox &txtCurrent() override { return box; }
    void directionChanged(SearchDirection) override {}
    SearchResults &results() override { return list; }

    MemoryTextBox box;
    RecordingBoxes boxes;
    NoResults list;
    Silence silence;
    cTextMethods textMethods{silence, [](const QString &) { return false; }};
    CSearch search{*this, boxes, textMethods};
};

/// The bytes as characters of one byte each, so that escapes are found soon; 0xFF is a lone surrogate.
inline QString textOf(const std::uint8_t *data, std::size_t size) {
    return QString::fromLatin1(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size))
        .replace(QChar(0xFF), QChar(0xD800));
}

/// Ends the run if something that always holds doesn't.
inline void require(bool holds) {
    if (!holds)
        std::abort();
}

} // namespace tolvo::fuzz
