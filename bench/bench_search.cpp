// SPDX-License-Identifier: MIT
// Search, find all and replace all in each mode, on a full text area with some 30,000 hits, and on texts and
// patterns that lead searches astray.
#include "bench/bench.h"
#include "tests/support/silent_search.h"

#include <functional>

using namespace tolvo;
using namespace tolvo::bench;

namespace {

constexpr double frame = 16;

using World = test::SilentSearch;
using Run = std::function<void(World &)>;

void measure(Table &table, const char *name, const QString &text, const Run &run) {
    World world;
    double best = 1e9;
    for (int i = 0; i < 7; ++i) {
        world.box.setText(text);
        world.box.setSelStart(static_cast<int>(text.size()));
        world.boxes.shown.clear();
        best = std::min(best, milliseconds([&] { run(world); }, 1));
    }
    const QString said = world.boxes.shown.empty() ? QString() : world.boxes.shown.back().text;
    table.add(name, best, frame, "ms", said.left(60).simplified().toStdString());
}

/// The flag that a search writes to.
bool &flag(bool value) {
    static bool fromStart;
    return fromStart = value;
}

const std::pair<const char *, Run> manyHits[] = {
    {"simple, last hit upwards",
     [](World &w) { w.search.SimpleSearch("A", false, true, false, flag(false), false, true); }},
    {"simple, find all", [](World &w) { w.search.SimpleFindAll("A", false, false, true); }},
    {"simple, replace all",
     [](World &w) { w.search.SimpleReplaceAll("a", "b", false, false, true, true, false); }},
    {"wildcards, last hit upwards",
     [](World &w) { w.search.WildcardSearch("@", false, true, false, false, {}); }},
    {"wildcards, find all", [](World &w) { w.search.WildcardFindAll("@", false, false, {}); }},
    {"wildcards, replace all",
     [](World &w) { w.search.WildcardReplaceAll("!", "<$1", false, false, true, {}, false); }},
    {"regular expression, last hit upwards",
     [](World &w) { w.search.RegExpSearch(w.box.Text(), "\\ba\\b", true, false, false); }},
    {"regular expression, find all",
     [](World &w) {
         QString text = w.box.Text();
         w.search.RegExpFindAll(text, "(\\w)", false);
     }},
    {"regular expression, replace all",
     [](World &w) { w.search.RegExpReplaceAll("(\\w) ", "$1,", false, true, false); }},
};

const std::pair<const char *, Run> astray[] = {
    {"simple, 30,000 letters in one endless word",
     [](World &w) {
         w.box.setText(QString(fullText, u'a'));
         w.search.SimpleSearch(QString(30000, u'a') + 'b', false, false, true, flag(true), false, false);
     }},
    {"simple, whole word in one endless word",
     [](World &w) {
         w.box.setText(QString(fullText, u'a'));
         w.search.SimpleReplaceAll("a", "b", false, false, true, false, false);
     }},
    {"wildcards, word before a bar that isn't there",
     [](World &w) { w.search.WildcardSearch("@|", false, false, true, false, {}); }},
    {"regular expression, letter that isn't there",
     [](World &w) { w.search.RegExpSearch(w.box.Text(), "zebra", false, true, false); }},
    {"regular expression, rest of line",
     [](World &w) { w.search.RegExpSearch(w.box.Text(), ".*zebra", false, true, false); }},
};

} // namespace

int main() {
    Table hits("Search, 65,535 characters with some 30,000 hits");
    const QString text = repeated(QStringLiteral("a b A C a b\r\n"));
    for (const auto &[name, run] : manyHits)
        measure(hits, name, text, run);
    Table traps("Search, led astray");
    for (const auto &[name, run] : astray)
        measure(traps, name, ordinaryText(), run);
    return hits.exitCode() | traps.exitCode();
}
