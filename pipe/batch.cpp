// SPDX-License-Identifier: MIT
#include "pipe/batch.h"

#include "pipe/text.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace tolvo {

namespace {

QString stringOf(const QJsonValue &value, const char *key) {
    if (!value.isString())
        throw BadRequest(QStringLiteral("\"%1\" must be a string").arg(QLatin1StringView(key)));
    return value.toString();
}

QString optionalString(const QJsonObject &object, const char *key) {
    const QJsonValue value = object.value(QLatin1StringView(key));
    return value.isUndefined() ? QString() : stringOf(value, key);
}

int optionalNumber(const QJsonObject &object, const char *key) {
    const QJsonValue value = object.value(QLatin1StringView(key));
    if (value.isUndefined())
        return 0;
    if (!value.isDouble() || value.toInt(-1) < 0)
        throw BadRequest(QStringLiteral("\"%1\" must be a whole number from 0").arg(QLatin1StringView(key)));
    return value.toInt();
}

PipeRequest readRequest(const QByteArray &line) {
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(line, &error);
    if (error.error != QJsonParseError::NoError)
        throw BadRequest(QStringLiteral("%1 at byte %2").arg(error.errorString()).arg(error.offset));
    if (!document.isObject())
        throw BadRequest(QStringLiteral("a request must be an object"));
    const QJsonObject object = document.object();
    PipeRequest request{.text = stringOf(object.value(QLatin1StringView("text")), "text"),
                        .selStart = optionalNumber(object, "selStart"),
                        .selLength = optionalNumber(object, "selLength"),
                        .steps = {},
                        .clipboard = optionalString(object, "clipboard")};
    const QJsonValue steps = object.value(QLatin1StringView("steps"));
    if (!steps.isArray())
        throw BadRequest(QStringLiteral("\"steps\" must be a list of strings"));
    for (const QJsonValue step : steps.toArray())
        request.steps += stringOf(step, "steps");
    return request;
}

} // namespace

QString answerRequest(const HeadlessWorld &world, const QByteArray &line) {
    try {
        RecordingBoxes boxes;
        return replyLine(runPipe(world, readRequest(line), boxes));
    } catch (const std::exception &failure) {
        return QStringLiteral("{\"error\":") + jsonString(QString::fromUtf8(failure.what())) + u'}';
    }
}

} // namespace tolvo
