// SPDX-License-Identifier: MIT
// What benchmarks share: a timer, sample texts, and a table that prints each figure beside its budget.
#pragma once

#include <QString>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

namespace tolvo::bench {

/// The capacity of the text area, in UTF-16 units.
inline constexpr qsizetype fullText = 65535;

/// The median time of several runs, in milliseconds.
template <class Work>
[[nodiscard]] double milliseconds(Work work, int runs = 7) {
    std::vector<double> times;
    for (int i = 0; i < runs; ++i) {
        const auto start = std::chrono::steady_clock::now();
        work();
        const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
        times.push_back(time.count());
    }
    std::nth_element(times.begin(), times.begin() + runs / 2, times.end());
    return times[static_cast<std::size_t>(runs) / 2];
}

/// A text of exactly `size` units, made of one piece again and again.
[[nodiscard]] inline QString repeated(const QString &piece, qsizetype size = fullText) {
    return piece.repeated(size / piece.size() + 1).first(size);
}

/// Prose with a bit of everything: sentences, addresses, quotations, lists, indents, references.
[[nodiscard]] inline QString ordinaryText(qsizetype size = fullText) {
    static const QString page = QStringLiteral(
        "The committee met on 12 March, at 10:30, in room 4 (second floor); see www.example.org/minutes.txt "
        "for "
        "the agenda.\r\nMembers don't read \"all of it\", e.g. the annex, but they're asked to... Isn't that "
        "so? "
        "Well, it is!\r\n\r\n    1. First item, with\ta tab and  two blanks\r\n    2. Second item: "
        "half-baked\r\n"
        "* A bullet point, costing \u00A3300 &amp; more\r\n> An answer quoted from mail@example.com\r\n"
        "iv) A Roman item; 'single quotes' \u2013 and a \u201Cclosing\u201D line.   \r\n\r\n");
    return repeated(page, size);
}

/// A table of figures. The program ends with exitCode(): 1 if one is over its budget.
class Table {
  public:
    explicit Table(const char *title) { std::printf("\n%s\n", title); }

    /// One figure; `remark` says how it came about.
    void add(const std::string &name, double figure, double budget, const char *unit,
             const std::string &remark = {}) {
        const bool over = figure > budget;
        m_anyOver = m_anyOver || over;
        std::printf("  %-44s %9.2f %-3s of %7.2f  %-4s %s\n", name.c_str(), figure, unit, budget,
                    over ? "OVER" : "", remark.c_str());
    }

    [[nodiscard]] int exitCode() const { return m_anyOver ? 1 : 0; }

  private:
    bool m_anyOver = false;
};

} // namespace tolvo::bench
