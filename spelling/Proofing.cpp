// SPDX-License-Identifier: MIT
#include "spelling/Proofing.h"

#include "platform/report_error.h"
#include "spelling/languages.h"
#include "spelling/spelling_provider.h"
#include "spelling/word_automation.h"

namespace tolvo {

Proofing::Proofing(const SpellingServices &services, ProofingHost &host, SpellingWalk &walk)
    : m_services(services), m_host(host), m_walk(walk) {
}

bool Proofing::CheckSpelling(QString &text, int LangID) {
    return proof(text, LangID, false);
}

bool Proofing::CheckGrammar(QString &text, int LangID) {
    return proof(text, LangID, true);
}

bool Proofing::proof(QString &text, int LangID, bool grammar) {
    const auto work = [&] {
        prepareSpelling(m_services);
        QString checked = text;
        checked.replace(QStringLiteral("\r\n"), QStringLiteral("\r"));
        const LanguageList settings(m_services.store);
        if (settings.provider() == providerType::word && settings.useWordDialog()) {
            checkInWord(checked, LangID, grammar);
        } else {
            QString corrected = checked;
            if (m_walk.CheckSpelling(m_host, corrected, LangID, grammar))
                checked = corrected;
        }
        text = checked.replace(QStringLiteral("\r"), QStringLiteral("\r\n"));
        m_host.setStatus(QStringLiteral("Spelling check complete"));
    };
    const auto wordIsMissing = [&] {
        m_services.boxes.show(
            {.text = QStringLiteral("Microsoft Word must be installed to check spelling and grammar")});
    };
    bool done = true;
    const bool quiet =
        reportFailures(m_services.boxes, QStringLiteral("cTextMethods"), QStringLiteral("Proofing"), [&] {
            try {
                work();
            } catch (const CheckCancelled &) {
                done = false;
            } catch (const Failure &failure) {
                if (failure.number() != failureNumber::objectNotCreated)
                    throw;
                done = false;
                wordIsMissing();
            }
        });
    if (done && quiet)
        return true;
    m_host.setStatus({}); // no check is running
    return false;
}

void Proofing::checkInWord(QString &text, int LangID, bool grammar) {
    m_host.setStatus(QStringLiteral("Contacting Microsoft Word. Please wait..."));
    const std::unique_ptr<WordApplication> word = m_services.word.create();
    word->addDocument();
    word->setVisible(true);
    word->setContentText(text);
    if (LangID != -1)
        word->setContentLanguage(LangID);
    word->allowForeground();
    if (grammar)
        word->CheckGrammar();
    else
        word->CheckSpelling();
    QString result = word->contentText();
    // Only a result of a single LF passes this test; any other line end that Word adds stays.
    if (result.right(2) == QStringLiteral("\n"))
        result.chop(1);
    text = result;
    word->closeDocument();
    word->quit();
}

} // namespace tolvo
