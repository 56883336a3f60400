// SPDX-License-Identifier: MIT
#include "pipe/session.h"

#include "pipe/text.h"
#include "powerbuttons/circular_check.h"
#include "search/found_matches.h"
#include "search/match_copy.h"
#include "shell/headless/HeadlessSession.h"
#include "shell/tool_table.h"

namespace tolvo {

namespace {

using ActionPtr = std::shared_ptr<CAction>;

/// Hands on every status text at the moment when it is shown.
class PipeWindows final : public HeadlessWindows {
  public:
    explicit PipeWindows(const std::function<void(const QString &)> &sayStatus) : m_sayStatus(sayStatus) {}

    void statusChanged(const QString &text) override {
        if (m_sayStatus && !text.isEmpty())
            m_sayStatus(text);
    }

  private:
    const std::function<void(const QString &)> &m_sayStatus;
};

/// The request of a step that searches; nothing for any other step.
std::optional<SearchRequest> searchOf(const CAction &action) {
    const ToolRow *row = toolRow(action.Tool()->Token());
    switch (row ? row->operation.window : SettingsWindow::None) {
    case SettingsWindow::Search:
        return readRequest(action.params(), false, actionReading());
    case SettingsWindow::Replace:
        return readRequest(action.params(), true, actionReading());
    case SettingsWindow::CopyMatches:
        return readMatchCopy(action.params()).search;
    default:
        return {};
    }
}

/// A request that can't be read has no report: its step fails and says why.
std::optional<PipeSearch> reportSearch(const CAction &action, int step, frmMain &session) {
    std::optional<SearchRequest> request;
    try {
        request = searchOf(action);
    } catch (const Failure &) {
        return {};
    }
    if (!request)
        return {};
    MatchBudget budget;
    const FoundMatches found =
        findMatches(session.txtCurrent().Text(), *request, session.oTextMethods, budget);
    PipeSearch report{.step = step,
                      .matches = static_cast<int>(found.places.size()),
                      .error = found.trouble,
                      .errorAt = found.troubleAt};
    if (request->replaceAll && found.isValid()) {
        const auto forecast = forecastReplaceAll(session.txtCurrent().Text(), *request, session.oTextMethods,
                                                 session.txtCurrent().capacity(), budget);
        report.matches = forecast ? forecast->count : report.matches;
    }
    return report;
}

QString searchJson(const PipeSearch &search) {
    QString json = QStringLiteral("{\"step\":%1,\"matches\":%2").arg(search.step).arg(search.matches);
    if (!search.error.isEmpty())
        json += QStringLiteral(",\"error\":") + jsonString(search.error);
    if (search.errorAt >= 0)
        json += QStringLiteral(",\"errorAt\":%1").arg(search.errorAt);
    return json + u'}';
}

QString messageJson(const Box &box) {
    static constexpr const char *icons[] = {"none", "information", "exclamation", "question", "critical"};
    return QStringLiteral("{\"icon\":\"") + QLatin1StringView(icons[static_cast<int>(box.icon)]) +
           QStringLiteral("\",\"title\":") +
           jsonString(box.title.isEmpty() ? applicationTitle() : box.title) + QStringLiteral(",\"text\":") +
           jsonString(box.text) + QStringLiteral(",\"buttons\":\"") +
           QLatin1StringView(box.buttons == BoxButtons::Ok ? "ok" : "yesno") + QStringLiteral("\"}");
}

template <class List, class ToJson>
QString jsonArray(const List &list, ToJson toJson) {
    QStringList entries;
    for (const auto &entry : list)
        entries += toJson(entry);
    return u'[' + entries.join(u',') + u']';
}

QString statisticsJson(const TextStatistics &statistics) {
    return jsonArray(statistics.rows, [](const StatisticsRow &row) {
        return jsonArray(QStringList{row.name, row.fullText, row.selection}, jsonString);
    });
}

} // namespace

bool PipeReply::warned() const {
    return toolWarned || hasWarning(messages);
}

PipeReply runPipe(const HeadlessWorld &world, const PipeRequest &request, RecordingBoxes &boxes,
                  const std::function<void(const QString &)> &sayStatus) {
    QList<ActionPtr> actions;
    for (const QString &step : request.steps)
        actions += actionOf(world.catalogue, step);
    const bool hasButton = !request.button.buttons.isEmpty();
    if (hasButton)
        actions += actionOf(world.catalogue, powerButtonToken + QStringLiteral(":PowerButton=1"));

    PipeWindows windows(sayStatus);
    HeadlessSession headless(world.store, world.catalogue, world.extensions, boxes, windows, world.dataFolder,
                             request.capacity);
    const bool runsButtons = std::any_of(actions.begin(), actions.end(), [](const ActionPtr &action) {
        return action->Tool()->Token() == powerButtonToken;
    });
    for (int i = 0; i < request.button.buttons.size(); ++i)
        headless.oPowerButtons.Add(request.button.buttons.at(i), i + 1);
    if (runsButtons && !hasButton)
        headless.session.loadPowerButtons();
    for (const ActionPtr &action : actions)
        refuseWindows(*action, headless.oPowerButtons);

    frmMain &session = headless.session;
    headless.clipboard.text = request.clipboard;
    session.takeText(request.text, request.text.size() > request.capacity);
    select(session.txtCurrent(), request.selStart, request.selLength);
    session.beginWithText();
    std::vector<PipeSearch> searches;
    int step = 0;
    session.runActions(actions, [&] {
        session.bRightButton = false; // every step says by itself whether it brings settings
        if (auto report = reportSearch(*actions.at(step), step, session))
            searches.push_back(*std::move(report));
        ++step;
    });

    TextBox &box = session.txtCurrent();
    return {.text = box.Text(),
            .selStart = box.SelStart(),
            .selLength = box.SelLength(),
            .status = session.labStatus(),
            .dirty = session.bDirty(),
            .clipboard = headless.clipboard.text,
            .messages = boxes.shown,
            .searches = std::move(searches),
            .statistics = windows.statistics,
            .toolWarned = session.warnings() > 0};
}

QString replyLine(const PipeReply &reply) {
    QString line = QStringLiteral("{\"text\":") + jsonString(reply.text) +
                   QStringLiteral(",\"selStart\":%1,\"selLength\":%2,\"status\":")
                       .arg(reply.selStart)
                       .arg(reply.selLength) +
                   jsonString(reply.status) + QStringLiteral(",\"dirty\":") +
                   QLatin1StringView(reply.dirty ? "true" : "false") + QStringLiteral(",\"clipboard\":") +
                   jsonString(reply.clipboard) + QStringLiteral(",\"messages\":") +
                   jsonArray(reply.messages, messageJson);
    if (!reply.searches.empty())
        line += QStringLiteral(",\"searches\":") + jsonArray(reply.searches, searchJson);
    if (reply.statistics)
        line += QStringLiteral(",\"statistics\":") + statisticsJson(*reply.statistics);
    return line + u'}';
}

} // namespace tolvo
