// SPDX-License-Identifier: MIT
// Spelling and grammar: the language, the check, and what is said when nothing was wrong.
#include "base/conversions.h"
#include "base/strings.h"
#include "preferences/settings_keys.h"
#include "shell/frmMain.h"

namespace tolvo {

namespace {

constexpr int languageCancelled = -2; ///< also asks for the stored language

} // namespace

int frmMain::languageOfCheck(const CAction *action) {
    if (action)
        return toInteger(action->Param(QStringLiteral("LangID")));
    if (bRightButton)
        return getOrDefault(m_services.store, settingKeys.spelling.langID);
    return m_services.dialogs.GetLangID(languageCancelled, true);
}

void frmMain::checkSpelling(bool grammar, const CAction *action) {
    const auto check = [&] { runSpellingCheck(grammar, action); };
    if (action) // the despatcher of the PowerButtons reports its failures itself
        check();
    else
        reportFailures(m_services.boxes, QStringLiteral("frmMain"),
                       grammar ? QStringLiteral("CheckGrammar") : QStringLiteral("CheckSpelling"), check);
}

void frmMain::runSpellingCheck(bool grammar, const CAction *action) {
    const bool dirty = m_dirty;
    const int language = languageOfCheck(action);
    if (!action && !bRightButton && language == languageCancelled)
        return;

    const QString before = txtCurrent().Text();
    QString after = before;
    Proofing proofing(m_services.spelling, *this, m_services.dialogs);
    const bool complete =
        grammar ? proofing.CheckGrammar(after, language) : proofing.CheckSpelling(after, language);
    bool unchanged = false;
    if (complete) {
        unchanged = StripTrailingEOL(before) == StripTrailingEOL(after);
        txtCurrent().setText(after);
        if (unchanged)
            m_dirty = dirty;
    }
    m_services.view.bringToFront();
    if (unchanged)
        say(grammar ? QStringLiteral("Spelling and grammar check complete")
                    : QStringLiteral("Spelling check complete"));
    m_services.view.bringToFront();
}

} // namespace tolvo
