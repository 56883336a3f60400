// SPDX-License-Identifier: MIT
#pragma once

#include "search/search_request.h"
#include "search/ui/copy_part.h"
#include "search/ui/element_button.h"

#include <array>
#include <optional>
#include <vector>

class QCheckBox;
class QDialog;
class QGridLayout;
class QGroupBox;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QRadioButton;
class QTabBar;
class QToolButton;
class QVBoxLayout;

namespace tolvo {

class ElidedLabel;
class ReplacementList;

/// The tab of a mode, from 0.
constexpr int tabOf(SearchMode mode) {
    return static_cast<int>(mode) - static_cast<int>(SearchMode::Simple);
}
constexpr SearchMode modeOfTab(int tab) {
    return static_cast<SearchMode>(tab + static_cast<int>(SearchMode::Simple));
}

/// The controls of frmSearch, made and laid out, with no behaviour yet.
struct SearchControls {
    explicit SearchControls(QDialog &window);

    /// The texts that elements can be inserted into.
    [[nodiscard]] std::array<SearchListEdit *, 3> textLists() const {
        return {cmbSearchText, cmbReplaceText, copyPart->cmbForm};
    }

    /// Puts the help for wildcards, which stands at the end of the window, below their options.
    void putHelpBelow();

    QTabBar *TabStrip1;
    SearchListEdit *cmbSearchText;
    SearchListEdit *cmbReplaceText;
    ElidedLabel *labAnswer;   ///< what the search finds
    ElidedLabel *labForecast; ///< what Replace All would do
    QLabel *labReplace;
    std::array<ElementButton *, 3> elementButtons; ///< beside the texts
    QToolButton *imgSwop;
    std::optional<CopyPart> copyPart; ///< always there
    QRadioButton *optSrchDown;
    QRadioButton *optSrchUp;
    QRadioButton *optSrchFromStart;
    QWidget *fraOptions; ///< what only the larger layout shows
    QCheckBox *chkMatchCase;
    QCheckBox *chkSmart;
    QCheckBox *chkWholeWord;
    QCheckBox *chkReplaceAll;
    QCheckBox *chkMarkMatches;
    ReplacementList *lstReplacements;
    QWidget *fraSpecialChars;
    QCheckBox *chkSpecialChars;
    std::vector<std::pair<QPushButton *, QString>> insertButtons; ///< with what each inserts
    QGroupBox *fraWildcards;
    std::array<QRadioButton *, 5> optWildcardOptions;
    QComboBox *cmbDecimalSep;
    QComboBox *cmbThousandsSep;
    QGroupBox *fraWildcardHelp;
    QPushButton *cmdSearch;
    QPushButton *cmdReplace;
    QPushButton *cmdReplaceAll;
    QPushButton *cmdCopyMatches;
    QPushButton *cmdOK;
    QPushButton *cmdCancel;
    QPushButton *cmdMore;
    QToolButton *picMoreArrowUp;
    QToolButton *picMoreArrowDown;
    QPushButton *cmdSearchHelp;
    QLabel *labFolded; ///< the options that are on while they are not shown

  private:
    QWidget *textRows();
    QWidget *directionRow();
    void makeOptions();
    void makeSpecialChars();
    void makeWildcards();
    void makeWildcardHelp();
    QVBoxLayout *buttonColumn();
    QHBoxLayout *moreRow();

    QDialog &m_window;
    QVBoxLayout *m_left; ///< all but the buttons and the help
};

} // namespace tolvo
