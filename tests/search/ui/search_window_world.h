// SPDX-License-Identifier: MIT
// The search window over a text box in memory, and its user.
#pragma once

#include "preferences/settings_store.h"
#include "search/ui/frmSearch.h"
#include "search/ui/frmSearchResults.h"
#include "tests/search/search_world.h"
#include "tests/ui/user.h"

namespace tolvo::test {

class SearchWindow : public SearchWorld {
  public:
    void directionChanged(SearchDirection direction) override { window->setDirection(direction); }
    SearchResults &results() override { return resultsWindow; }

  protected:
    void SetUp() override {
        reopen();
        show("«»one two One");
    }
    void reopen() { window = std::make_unique<frmSearch>(search, store, boxes, nullptr); }
    template <class Control>
    Control &find(const char *name) {
        return child<Control>(*window, name);
    }
    void click(const char *name) { find<QAbstractButton>(name).click(); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        tolvo::press(QApplication::focusWidget() ? *QApplication::focusWidget() : *window, key, modifiers);
    }
    void alt(Qt::Key key) { press(key, Qt::AltModifier); }
    void type(const char *text) { QTest::keyClicks(QApplication::focusWidget(), QString::fromLatin1(text)); }
    void open(bool bReplace) {
        window->showDialog(bReplace);
        activate(*window);
    }
    bool visible(const char *name) { return find<QWidget>(name).isVisible(); }

    SettingsStore store{QStringLiteral(":memory:")};
    SearchResultsWindow resultsWindow{[] { return QFont(); }, [this]() -> TextBox & { return box; }, nullptr};
    std::unique_ptr<frmSearch> window;
};

} // namespace tolvo::test
