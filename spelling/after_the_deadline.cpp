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

QString className() {
    return QStringLiteral("CSpelling");
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
    QXmlStreamReader prolog(reply);
    while (!prolog.atEnd() && prolog.readNext() != QXmlStreamReader::StartElement) {
        if (prolog.tokenType() == QXmlStreamReader::DTD)
            return {};
    }
    QDomDocument document;
    if (!document.setContent(reply))
        return {};
    return document;
}

std::optional<QDomDocument> AfterTheDeadline::getAtD(const QString &text) {
    if (m_services.atdEndpoint.isEmpty())
        return std::nullopt;
    QString prepared = m_textMethods.checkPunctuation(text, true);
    prepared.replace(u'\r', u' ').replace(u'\t', u' ');
    const HttpReply reply = m_services.http.get(atdRequest(m_services.atdEndpoint, prepared));
    if (reply.status == 0)
        return std::nullopt;
    if (reply.status != okStatus)
        throw Failure(failureNumber::httpStatus, reply.statusText, QStringLiteral("CSpelling::getAtD"));
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
    // Where the next local error is inserted. Not lowered when an older error of the same word goes: such an
    // error can come to stand behind the one that it was found before.
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
