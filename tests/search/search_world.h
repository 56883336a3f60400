// SPDX-License-Identifier: MIT
// A search without a window: a text box in memory, boxes that are kept, a list of results.
#pragma once

#include "platform/headless/MemoryTextBox.h"
#include "search/CSearch.h"
#include "tests/support/boxes.h"
#include "tests/text/engine.h"

#include <QStringList>

namespace tolvo::test {

/// Whether a row's options hold a letter.
inline bool has(const char *options, char option) {
    return QLatin1StringView(options).contains(QLatin1Char(option));
}

struct KeptResults : SearchResults {
    void clear() override {
        lines.clear();
        locations.clear();
    }
    void add(const QString &line, qint32 location) override {
        lines.append(line);
        locations.append(location);
    }
    void setCaption(const QString &text) override { caption = text; }
    void show() override { ++timesShown; }

    QStringList lines;
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

    /// A text as a picture: "one|t[w]o" has a selection and a line end in it, "on^e" a caret.
    void show(QString picture) {
        picture.replace(u'|', QStringLiteral("\r\n"));
        const qsizetype caret = picture.indexOf(u'^');
        const qsizetype open = picture.indexOf(u'[');
        const qsizetype close = picture.indexOf(u']') - 1;
        box.setText(picture.remove(u'^').remove(u'[').remove(u']'));
        select(box, static_cast<int>(open < 0 ? std::max<qsizetype>(caret, 0) : open),
               static_cast<int>(open < 0 ? 0 : close - open));
    }

    [[nodiscard]] QString picture() const {
        QString text = box.Text();
        if (box.SelLength() == 0)
            text.insert(box.SelStart(), u'^');
        else
            text.insert(box.SelStart() + box.SelLength(), u']').insert(box.SelStart(), u'[');
        return text.replace(QStringLiteral("\r\n"), QStringLiteral("|"));
    }

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
