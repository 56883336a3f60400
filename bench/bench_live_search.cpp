// SPDX-License-Identifier: MIT
// What one key in the search box costs the thread of the window, from the key to the painted answer, in a
// text of 65,535 units.
#include "bench/bench.h"
#include "preferences/settings_store.h"
#include "search/ui/frmSearch.h"
#include "tests/support/silent_search.h"
#include "widgets/ElidedLabel.h"

#include <QApplication>
#include <QLineEdit>
#include <QTabBar>
#include <QTest>
#include <algorithm>
#include <array>
#include <ctime>

namespace {

using namespace tolvo;

constexpr double frame = 16; // milliseconds
constexpr auto patience = std::chrono::seconds(4);

/// What this thread has worked so far, in milliseconds.
double worked() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

struct Pattern {
    const char *name;
    SearchMode mode;
    QString find; ///< but for the last key
    Qt::Key key;
};

class Typist {
  public:
    explicit Typist(const QString &text) : m_window(m_world.search, m_store, m_world.boxes, nullptr) {
        m_box.resize(600, 400);
        m_box.setText(text);
        m_box.show();
        m_window.watch({.boxes = {&m_box, &m_other},
                        .shown = [this]() -> PlainTextBox & { return m_box; },
                        .worker = m_worker});
    }

    /// The median of several keys.
    double key(const Pattern &pattern) {
        std::array<double, 5> costs{};
        std::generate(costs.begin(), costs.end(), [&] { return once(pattern); });
        std::nth_element(costs.begin(), costs.begin() + 2, costs.end());
        return costs[2];
    }
    [[nodiscard]] QString answer() const {
        return m_window.findChild<ElidedLabel *>(QStringLiteral("labAnswer"))->text();
    }

  private:
    double once(const Pattern &pattern) {
        m_window.hide();
        m_window.setSearchText(pattern.find);
        m_window.findChild<QTabBar *>(QStringLiteral("TabStrip1"))->setCurrentIndex(tabOf(pattern.mode));
        m_window.showDialog(true);
        m_window.expandDialog();
        settle();
        auto *edit = m_window.findChild<QComboBox *>(QStringLiteral("cmbSearchText"))->lineEdit();
        edit->end(false);
        const double before = worked();
        QTest::keyClick(edit, pattern.key);
        settle();
        return worked() - before;
    }
    /// Until the answer is there and painted, and nothing more happens.
    void settle() {
        const auto start = std::chrono::steady_clock::now();
        const auto isPending = [&] {
            return answer().isEmpty() || answer() == QLatin1StringView("searching...");
        };
        QTest::qWait(150);
        while (isPending() && std::chrono::steady_clock::now() - start < patience)
            QTest::qWait(50);
        QTest::qWait(50);
    }

    test::SilentSearch m_world;
    SettingsStore m_store{QStringLiteral(":memory:")};
    PlainTextBox m_box{PlainTextBox::Lines::AsTheyAre};
    PlainTextBox m_other{PlainTextBox::Lines::Wrapped};
    BackgroundWorker m_worker;
    frmSearch m_window;
};

} // namespace

int main(int argc, char **argv) {
    QApplication application(argc, argv);
    bench::Table table("A key in the search box, 65,535 characters");
    using enum SearchMode;
    const Pattern patterns[] = {
        {"simple, a letter", Simple, {}, Qt::Key_A},
        {"simple, 32,000 letters", Simple, QString(32000, u'a'), Qt::Key_A},
        {"wildcards, every word", Wildcard, {}, Qt::Key_At},
        {"regular expression, every letter", RegularExpression, QStringLiteral("\\"), Qt::Key_W},
        {"regular expression, the whole text", RegularExpression, QStringLiteral("[^]"), Qt::Key_Asterisk},
        {"regular expression, a group not closed", RegularExpression, QString(32000, u'('), Qt::Key_A},
        {"regular expression that takes too long", RegularExpression, QStringLiteral("(.|.)*[~^"),
         Qt::Key_BracketRight},
    };
    const std::pair<const char *, QString> texts[] = {
        {"prose", bench::ordinaryText()},
        {"one line", bench::ordinaryText().replace(QStringLiteral("\r\n"), QStringLiteral("  "))},
        {"one word", bench::repeated(QStringLiteral("a"))}};
    for (const auto &[name, text] : texts) {
        Typist typist(text);
        for (const Pattern &pattern : patterns) {
            const double cost = typist.key(pattern);
            table.add(std::string(name) + ": " + pattern.name, cost, frame, "ms",
                      typist.answer().left(40).toStdString());
        }
    }
    return table.exitCode();
}
