// SPDX-License-Identifier: MIT
// The panel of tools as a model: eighteen rows, categories that open like an accordion. The window paints the
// rows; it owns the time that passes between two steps of the animation.
#pragma once

#include "powerbuttons/catalogue.h"

#include <QString>
#include <array>
#include <functional>

namespace tolvo {

/// One image button of the favourites bar. The tag is a token, or one of two composites ("foBOTH" and
/// "chPNC", see frmMain::imgFavourites_Click).
struct Favourite {
    const char16_t *tag;
    const char16_t *tooltip;
};

/// The eleven favourites in the order of the bar.
inline constexpr std::array<Favourite, 11> favourites{{
    {u"foIND", u"Indent"},
    {u"foUNI", u"Unindent"},
    {u"ccTIT", u"Title case"},
    {u"chPNC", u"Plain characters and check punctuation"},
    {u"foTRM", u"Trim white space"},
    {u"chGRA", u"Spelling and Grammar"},
    {u"foPAR", u"Paragraph"},
    {u"foREM", u"Remove extra lines"},
    {u"liNUM", u"Numbered List"},
    {u"liBUL", u"Bullet List"},
    {u"foBOTH", u"Trim trailing space and single space"},
}};

/// The model. Rows count from 1.
class cToolbox {
  public:
    static constexpr int rowCount = 18;
    static constexpr int stepDelay = 75; ///< milliseconds that one step of the animation stays

    /// The mark in front of a row.
    enum class Mark { Hidden, Closed, Open };
    enum class Colour { Category, Tool };

    /// What a row shows, and what a click on it means.
    struct Row {
        QString text;
        QString tag; ///< a token, or "LAY" and the number of a category from 1
        QString tooltip;
        Colour colour = Colour::Category;
        bool visible = false;
        Mark mark = Mark::Hidden;

        [[nodiscard]] bool isCategory() const { return tag.startsWith(QLatin1StringView("LAY")); }
        bool operator==(const Row &) const = default;
    };

    /// What the panel asks of its surroundings; each may be empty.
    struct Hooks {
        std::function<void()> rowsChanged;           ///< shows the rows
        std::function<void(int milliseconds)> delay; ///< waits while window events go on
    };

    void setHooks(Hooks hooks) { m_hooks = std::move(hooks); }
    /// Called when tools slide in or out; it knows whether sounds are on.
    void setSound(std::function<void()> play) { m_playSound = std::move(play); }

    /// Takes the visible lines of the catalogue and lays them out with all categories closed.
    void init(const QList<Catalogue::PanelItem> &items);

    /// Opens the category of a number from 1 and closes the one that was open; the open one's own number (or
    /// 0) closes it. Returns when the animation is over.
    void Layout(int layer);

    /// Waits while window events go on.
    void Delay(int milliseconds) const;

    /// The tree is being rebuilt; clicks on rows are ignored meanwhile.
    [[nodiscard]] bool rolling() const { return m_rolling; }

    /// A row by its number, 1 to 18.
    [[nodiscard]] const Row &row(int number) const { return m_rows.at(static_cast<size_t>(number - 1)); }

  private:
    void rollUp();
    /// Shows the tools from item `item` on at row `row`, one step each; both are then after the last.
    void rollOut(qsizetype &item, int &row);
    void showCategoriesBelow(qsizetype item, int row);
    /// Rows beyond the last are not shown.
    void setRow(int number, const Row &row);
    void changed() const;
    void playSound() const;

    Hooks m_hooks;
    std::function<void()> m_playSound;
    QList<Catalogue::PanelItem> m_items;
    std::array<Row, rowCount> m_rows;
    int m_openLayer = 0; ///< number of the open category, 0 when all are closed
    bool m_rolling = false;
};

} // namespace tolvo
