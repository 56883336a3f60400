// SPDX-License-Identifier: MIT
#pragma once

#include "platform/headless/ConsoleBoxes.h"
#include "platform/headless/MemoryTextBox.h"
#include "search/CSearch.h"
#include "tests/support/silent_host.h"

namespace tolvo::test {

/// A search over a text box in memory, whose results nobody looks at.
struct SilentSearch : SearchHost, SearchResults {
    TextBox &txtCurrent() override { return box; }
    void directionChanged(SearchDirection) override {}
    SearchResults &results() override { return *this; }
    void clear() override {}
    void add(const HitLine &, qint32) override {}
    void setCaption(const QString &) override {}
    void show() override {}

    MemoryTextBox box;
    RecordingBoxes boxes;
    SilentHost host;
    cTextMethods textMethods{host, [](const QString &) { return false; }};
    CSearch search{*this, boxes, textMethods};
};

} // namespace tolvo::test
