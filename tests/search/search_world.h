// SPDX-License-Identifier: MIT
// A search without a window: a text box in memory, boxes that are kept, a list of results.
#pragma once

#include "platform/headless/MemoryTextBox.h"
#include "search/CSearch.h"
#include "tests/support/boxes.h"
#include "tests/support/pictures.h"
#include "tests/text/engine.h"

#include <QStringList>

namespace tolvo::test {

struct KeptResults : SearchResults {
    void clear() override {
        lines.clear();
        shown.clear();
        locations.clear();
    }
    void add(const HitLine &line, qint32 location) override {
        lines.append(line.text);
        const HitLine painted = shownHitLine(line);
        shown.append(QString(painted.text)
                         .insert(painted.hitStart + painted.hitLength, u'\u00BB')
                         .insert(painted.hitStart, u'\u00AB'));
        locations.append(location);
    }
    void setCaption(const QString &text) override { caption = text; }
    void show() override { ++timesShown; }

    QStringList lines;
    QStringList shown; ///< as the list paints them, the hit between guillemets
    QList<qint32> locations;
    QString caption;
    int timesShown = 0;
};

class SearchWorld : public ::testing::Test, public SearchHost {
  public:
    TextBox &txtCurrent() override { return box; }
    void directionChanged(SearchDirection direction) override { directions.append(direction); }
    SearchResults &results() override { return list; }
    bool interrupted() override { return isImpatient; }

    void show(const char *picture) { test::show(box, QString::fromUtf8(picture)); }
    [[nodiscard]] QString picture() const { return pictureOf(box); }
    /// The texts of the boxes since the last call, "/" between them.
    [[nodiscard]] QString said() { return boxes.said(); }

    MemoryTextBox box;
    NamedBoxes boxes;
    KeptResults list;
    QList<SearchDirection> directions;
    bool isImpatient = false;
    KeptWords engineWords;
    cTextMethods textMethods{engineWords, [](const QString &) { return false; }};
    CSearch search{*this, boxes, textMethods};
};

} // namespace tolvo::test
