// SPDX-License-Identifier: MIT
#include "spelling/after_the_deadline.h"

#include "base/numbers.h"
#include "platform/http_client.h"
#include "platform/report_error.h"
#include "spelling/words.h"
#include "text/cTextMethods.h"

#include <QUrl>
#include <QXmlStreamReader>

namespace tolvo {

namespace {

constexpr int okStatus = 200;
constexpr int keyDigits = 32;

constexpr int deepestLevel = 32;       ///< the service's replies have 4 levels
constexpr qsizetype longestTag = 1000; ///< bytes; the service's tags have no attributes

QString className() {
    return QStringLiteral("CSpelling");
}

/// Whether a tag is too long: the reader's time grows with the square of the number of attributes.
bool hasLongTag(const QByteArray &reply) {
    qsizetype length = 0; // of the tag so far, 0 outside a tag
    for (const char byte : reply) {
        if (byte == '>')
            length = 0;
        else if (byte == '<' || length > 0)
            ++length;
        if (length > longestTag)
            return true;
    }
    return false;
}

/// Whether a reply is XML of few levels without a document type: the time for a document grows with the
/// square of its depth, and entities could expand without limit.
bool isFlat(const QByteArray &reply) {
    QXmlStreamReader reader(reply);
    reader.setNamespaceProcessing(false);
    for (int depth = 0; !reader.atEnd();) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::StartElement)
            ++depth;
        else if (token == QXmlStreamReader::EndElement)
            --depth;
        if (token == QXmlStreamReader::DTD || depth > deepestLevel)
            return false;
    }
    return !reader.hasError();
}

/// The reason phrase, or the status if the server sends no phrase.
QString statusText(const HttpReply &reply) {
    return reply.statusText.isEmpty() ? QStringLiteral("HTTP status %1").arg(reply.status) : reply.statusText;
}

} // namespace

QByteArray atdRequest(const QString &endpoint, const QString &preparedText) {
    QByteArray base = endpoint.toUtf8();
    while (base.endsWith('/'))
        base.chop(1);
    QByteArray key = TOLVO_ATD_KEY;
    for (int i = 0; i < keyDigits; ++i)
        key += "0123456789ABCDEF"[RandomInRange(0, 15)];
    return base + "/checkDocument?key=" + key + "&data=" + QUrl::toPercentEncoding(preparedText);
}

QDomDocument atdDocument(const QByteArray &reply) {
    QDomDocument document;
    if (!hasLongTag(reply) && isFlat(reply) && document.setContent(reply))
        return document;
    return {};
}

std::optional<QDomDocument> AfterTheDeadline::getAtD(const QString &text) {
    if (m_services.atdEndpoint.isEmpty())
        return std::nullopt;
    QString prepared = m_textMethods.checkPunctuation(text, true);
    prepared.replace(u'\r', u' ').replace(u'\t', u' ');
    const HttpReply reply = m_services.http.get(atdRequest(m_services.atdEndpoint, prepared));
    if (reply.cancelled)
        throw CheckCancelled();
    if (reply.status == 0)
        return std::nullopt;
    if (reply.status != okStatus)
        throw Failure(failureNumber::httpStatus, statusText(reply), QStringLiteral("CSpelling::getAtD"));
    return atdDocument(reply.body);
}

std::optional<CSpellingErrors> AfterTheDeadline::check(const QString &text) {
    const std::optional<QDomDocument> document = getAtD(text);
    if (!document) {
        ReportError(m_services.boxes, className(), QStringLiteral("Spell"),
                    QStringLiteral("After the Deadline did not respond. Please try again later'"),
                    failureNumber::noAnswer);
        return std::nullopt;
    }
    CSpellingErrors errors = parseAtD(*document, text);
    if (errors.Count() == 0)
        return m_dictionary.checkHunspell(text);
    merge(errors, text);
    return errors;
}

void AfterTheDeadline::merge(CSpellingErrors &errors, const QString &text) {
    qsizetype position = 1;
    // Where the next local error is inserted. It stays when an earlier error of the same word is removed, so
    // a local error can end up after the one it precedes in the text.
    qsizetype index = 0;
    for (qsizetype current = 1; current <= errors.Count(); ++current) {
        const qsizetype start = errors.Item(current).TextStart();
        ++index;
        while (position <= start) {
            const QStringView word = getNextWord(text, position, false);
            if (m_dictionary.Spell(word))
                continue;
            const auto local = std::make_shared<CSpellingError>();
            local->init(word.toString(), position - word.size() - 1, position - 1,
                        spellingErrorType::notInDictionary);
            if (local->TextStart() == start)
                continue;
            local->setSpellingSuggestions(m_dictionary.hunspellSuggest(local->ErrorText()));
            const qsizetype older = errors.AddItem(local, index);
            if (older > 0 && older <= current)
                --current;
            if (index <= current)
                ++current;
            ++index;
        }
    }
}

} // namespace tolvo
