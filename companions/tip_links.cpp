// SPDX-License-Identifier: MIT
#include "companions/tip_links.h"

#include <QRegularExpression>
#include <algorithm>

namespace tolvo {

namespace {

QString nameOf(const Catalogue::PanelItem &tool) {
    const QString stops = QStringLiteral("...");
    return tool.label.endsWith(stops) ? tool.label.chopped(stops.size()) : tool.label;
}

} // namespace

QString withToolLinks(const QString &tip, const QList<Catalogue::PanelItem> &tools) {
    QStringList names;
    for (const Catalogue::PanelItem &tool : tools) {
        if (tool.token != u'>')
            names += QRegularExpression::escape(nameOf(tool));
    }
    if (names.isEmpty())
        return tip.toHtmlEscaped();
    // Of two names that begin alike the longer one.
    std::sort(names.begin(), names.end(), [](const auto &a, const auto &b) { return a.size() > b.size(); });
    const QRegularExpression anyName(QStringLiteral("\\b(?:%1)\\b").arg(names.join(u'|')));
    QString html;
    qsizetype end = 0;
    for (auto walk = anyName.globalMatch(tip); walk.hasNext();) {
        const QRegularExpressionMatch match = walk.next();
        const auto tool = std::find_if(tools.begin(), tools.end(),
                                       [&](const auto &item) { return nameOf(item) == match.captured(); });
        html += tip.sliced(end, match.capturedStart() - end).toHtmlEscaped();
        html += QStringLiteral("<a href=\"%1\">%2</a>").arg(tool->token, match.captured().toHtmlEscaped());
        end = match.capturedEnd();
    }
    return html + tip.sliced(end).toHtmlEscaped();
}

} // namespace tolvo
