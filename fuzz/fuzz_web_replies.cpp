// SPDX-License-Identifier: MIT
// A reply of a web service, of any content: the parsers end, and every error lies inside the text.
#include "base/failure.h"
#include "fuzz/fuzz.h"
#include "platform/headless/ConsoleBoxes.h"
#include "platform/http_client.h"
#include "preferences/settings_store.h"
#include "spelling/after_the_deadline.h"
#include "spelling/ginger.h"
#include "spelling/word_automation.h"
#include "tests/support/silent_host.h"

namespace {

struct NoNetwork : tolvo::HttpClient {
    tolvo::HttpReply get(const QByteArray &) override { return {}; }
    tolvo::HttpReply post(const QByteArray &, const QByteArray &, const QByteArray &) override { return {}; }
};

void parse(const QByteArray &reply) {
    static tolvo::SettingsStore store(QStringLiteral(":memory:"));
    static NoNetwork http;
    static tolvo::NoWordAutomation word;
    static tolvo::test::SilentHost silence;
    static const tolvo::cTextMethods methods(silence, [](const QString &) { return false; });
    const QString text = QStringLiteral("The dog, the fox and teh dog\rare a a text.");
    tolvo::RecordingBoxes boxes;
    const tolvo::SpellingServices services{store, boxes, http, word, {}, {}, {}};
    try {
        (void)tolvo::parseGinger(boxes, QString::fromUtf8(reply), text);
    } catch (const tolvo::Failure &failure) {
        tolvo::fuzz::require(failure.number() == tolvo::failureNumber::serviceException);
    }
    try {
        tolvo::LocalDictionary dictionary; // none: every word is acceptable
        tolvo::AfterTheDeadline service(services, methods, dictionary);
        for (const auto &error : service.parseAtD(tolvo::atdDocument(reply), text))
            tolvo::fuzz::require(error->TextStart() >= 0 && error->TextStart() <= text.size());
    } catch (const tolvo::Failure &) {
        return; // an element or a pattern that is no good
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    parse(QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)));
    return 0;
}
