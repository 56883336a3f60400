// SPDX-License-Identifier: MIT
#include "companions/refresh.h"

#include "base/application.h"
#include "base/conversions.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>
#include <QUrlQuery>
#include <QVersionNumber>

namespace tolvo {

namespace {

bool saysYes(const HttpReply &reply) {
    return reply.status >= 200 && reply.status < 300;
}

/// What to say about an answer that isn't a success.
QString refusal(const HttpReply &reply) {
    if (reply.status == 0)
        return QStringLiteral("The server can't be reached: %1.").arg(reply.statusText);
    return QStringLiteral("The server refused: %1.")
        .arg(QStringLiteral("%1 %2").arg(reply.status).arg(reply.statusText).trimmed());
}

bool isWebAddress(const QUrl &url) {
    return url.isValid() && !url.host().isEmpty() &&
           (url.scheme() == QLatin1StringView("http") || url.scheme() == QLatin1StringView("https"));
}

void lookForUpdate(const QUrl &address, HttpClient &client, RefreshOutcome &outcome) {
    QUrl url = address;
    QUrlQuery query(url);
    query.addQueryItem(QStringLiteral("version"), applicationVersion());
    url.setQuery(query);
    const HttpReply reply = client.get(url.toEncoded());
    if (!saysYes(reply)) {
        outcome.done = false;
        outcome.messages += refusal(reply);
        return;
    }
    const QJsonObject answer = QJsonDocument::fromJson(reply.body).object();
    const auto offered = QVersionNumber::fromString(answer.value(QStringLiteral("version")).toString());
    if (offered.isNull()) {
        outcome.done = false;
        outcome.messages += QStringLiteral("The server's answer about updates makes no sense.");
        return;
    }
    if (offered <= QVersionNumber::fromString(applicationVersion())) {
        outcome.messages +=
            QStringLiteral("%1 %2 is up to date.").arg(applicationTitle(), applicationVersion());
        return;
    }
    outcome.newer = true;
    outcome.messages += QStringLiteral("Version %1 of %2 is available. You have version %3.")
                            .arg(offered.toString(), applicationTitle(), applicationVersion());
    const QUrl download(answer.value(QStringLiteral("url")).toString());
    if (isWebAddress(download))
        outcome.download = download.toString();
}

void sendCounters(const QUrl &address, SettingsStore &store, HttpClient &client, const Clock &clock,
                  RefreshOutcome &outcome) {
    const UsagePeriod period = usagePeriod(store);
    const QDateTime now = clock.now();
    const HttpReply reply = client.post(address.toEncoded(), usageReport(period, now), "application/json");
    if (!saysYes(reply)) {
        outcome.done = false;
        outcome.messages += QStringLiteral("The usage counters have not been sent. ") + refusal(reply);
        return;
    }
    beginPeriod(store, period, now);
    outcome.messages += QStringLiteral("The usage counters have been sent. Thank you.");
}

QJsonObject counts(const QHash<QString, double> &counters) {
    QJsonObject object;
    for (auto counter = counters.begin(); counter != counters.end(); ++counter)
        object.insert(counter.key(), counter.value());
    return object;
}

} // namespace

std::optional<RefreshTask> refreshTask(const QStringList &switches) {
    RefreshTask task;
    for (const QString &text : switches) {
        if (text == QLatin1StringView("/update"))
            task.update = true;
        else if (text == QLatin1StringView("/stats"))
            task.stats = true;
        else if (text == QLatin1StringView("/quiet"))
            task.quiet = true;
        else
            return std::nullopt;
    }
    return task;
}

QByteArray updateAddress() {
    if (qEnvironmentVariableIsSet("TOLVO_UPDATE_URL"))
        return qgetenv("TOLVO_UPDATE_URL").trimmed();
    return TOLVO_UPDATE_URL;
}

QByteArray usageReport(const UsagePeriod &period, const QDateTime &until) {
    return QJsonDocument(QJsonObject{{QStringLiteral("application"), applicationTitle()},
                                     {QStringLiteral("version"), applicationVersion()},
                                     {QStringLiteral("since"), period.since},
                                     {QStringLiteral("until"), dateText(until)},
                                     {QStringLiteral("starts"), period.starts},
                                     {QStringLiteral("tools"), counts(period.tools)},
                                     {QStringLiteral("powerButtonTools"), counts(period.powerButtonTools)}})
        .toJson(QJsonDocument::Compact);
}

RefreshOutcome refresh(const RefreshTask &task, const QByteArray &address, SettingsStore &store,
                       HttpClient &client, const Clock &clock) {
    RefreshOutcome outcome;
    if (!task.update && !task.stats)
        return outcome;
    if (address.isEmpty()) {
        outcome.messages += QStringLiteral("This copy of %1 has no address where it could ask for updates.")
                                .arg(applicationTitle());
        return outcome;
    }
    const QUrl url = QUrl::fromEncoded(address);
    if (!isWebAddress(url)) {
        outcome.done = false;
        outcome.messages += QStringLiteral("'%1' is not a web address.").arg(QString::fromUtf8(address));
        return outcome;
    }
    if (task.update)
        lookForUpdate(url, client, outcome);
    if (task.stats)
        sendCounters(url, store, client, clock, outcome);
    return outcome;
}

} // namespace tolvo
