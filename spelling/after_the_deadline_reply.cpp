// SPDX-License-Identifier: MIT
// Reads a reply of After the Deadline.
#include "spelling/after_the_deadline.h"

#include "base/strings.h"
#include "platform/report_error.h"
#include "spelling/reply_reports.h"
#include "spelling/words.h"

#include <QSet>
#include <QStringList>
#include <functional>

namespace tolvo {

namespace {

/// The failure for an element that is missing from an error.
constexpr int missingElement = 91;

QString textOf(const QDomElement &error, const QString &name) {
    const QDomElement element = error.firstChildElement(name);
    if (element.isNull())
        throw Failure(
            missingElement,
            QStringLiteral("The reply of After the Deadline holds an error without '%1'").arg(name));
    return element.text();
}

class ReplyWalk {
  public:
    ReplyWalk(const SpellingServices &services, LocalDictionary &dictionary, const QString &text)
        : m_services(services), m_dictionary(dictionary), m_text(text) {}

    CSpellingErrors walk(const QDomElement &root) {
        try {
            readAll(root);
        } catch (const Failure &) {
            m_reports.show(m_services.boxes);
            throw;
        }
        m_reports.show(m_services.boxes);
        return m_errors;
    }

  private:
    void readAll(const QDomElement &root) {
        for (QDomNode node = root.firstChild(); !node.isNull(); node = node.nextSibling()) {
            if (node.nodeName() == QStringLiteral("message")) {
                m_reports.show(m_services.boxes);
                ReportError(m_services.boxes, QStringLiteral("CSpelling"), QStringLiteral("Spell"),
                            node.toElement().text(), failureNumber::serviceMessage);
                return;
            }
            if (node.nodeName() != QStringLiteral("error")) {
                m_reports.unexpected(node.nodeName());
                continue;
            }
            readError(node.toElement());
        }
    }

    /// Runs a step. Once suggestions have been read, a failure in a step is ignored: what the step sets keeps
    /// its value from the error before.
    bool attempt(const std::function<void()> &step) {
        if (!m_quiet) {
            step();
            return true;
        }
        try {
            step();
            return true;
        } catch (const Failure &) {
            return false;
        }
    }

    [[nodiscard]] bool isKnown(const QString &text) { return m_dictionary.checkHunspell(text).Count() == 0; }

    void readError(const QDomElement &error) {
        attempt([&] { m_phrase = textOf(error, QStringLiteral("string")); });
        attempt([&] { m_type = typeOf(textOf(error, QStringLiteral("type"))); });
        attempt([&] { m_description = textOf(error, QStringLiteral("description")); });
        attempt([&] { m_precontext = textOf(error, QStringLiteral("precontext")); });
        qsizetype start = -1;
        // If this fails, the error has no place.
        attempt([&] { start = findThePlace(m_reports, 1, m_text, m_phrase, m_precontext) - 1; });
        // A phrase is always found at its first place. If an error is there already, this one has no place.
        if (start < 0 || m_places.contains(start))
            return;
        const bool isSpelling = m_type == spellingErrorType::notInDictionary;
        if (isSpelling && isKnown(m_phrase))
            return;
        CSpellingError &added = m_errors.Add(m_phrase, start, start + m_phrase.size(), m_type);
        m_places.insert(start);
        added.Description = m_description;
        m_quiet = true;
        readOptions(error.firstChildElement(QStringLiteral("suggestions")), added.SpellingSuggestions(),
                    !isSpelling);
    }

    static int typeOf(const QString &word) {
        const int index = IndexInList(word, {QStringLiteral("spelling"), QStringLiteral("capitalisation"),
                                             QStringLiteral("grammar"), QStringLiteral("suggestion")});
        return index < 0 ? spellingErrorType::unknown : index + 1;
    }

    void readOptions(const QDomElement &suggestions, CSpellingSuggestions &list, bool mayOmit) {
        const QString name = QStringLiteral("option");
        for (QDomElement option = suggestions.firstChildElement(name); !option.isNull();
             option = option.nextSiblingElement(name)) {
            QString text = option.text();
            if (mayOmit && text == QStringLiteral("(omit)"))
                text = QStringLiteral("<Omit>");
            else if (!isKnown(text))
                continue;
            // An option that is in the list already fails and is ignored.
            attempt([&] { list.Add(m_phrase, text, text); });
        }
    }

    const SpellingServices &m_services;
    LocalDictionary &m_dictionary;
    const QString &m_text;
    CSpellingErrors m_errors;
    ReplyReports m_reports;
    QSet<qsizetype> m_places; ///< the starts of m_errors
    bool m_quiet = false;
    QString m_phrase;
    int m_type = spellingErrorType::unknown;
    QString m_description;
    QString m_precontext;
};

} // namespace

CSpellingErrors AfterTheDeadline::parseAtD(const QDomDocument &document, const QString &text) {
    return ReplyWalk(m_services, m_dictionary, text).walk(document.documentElement());
}

} // namespace tolvo
