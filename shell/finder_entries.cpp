// SPDX-License-Identifier: MIT
#include "shell/finder_entries.h"

#include "base/paths.h"
#include "powerbuttons/CPowerButton.h"
#include "powerbuttons/catalogue.h"
#include "preferences/settings_keys.h"
#include "shell/cToolbox.h"
#include "shell/frmMain.h"
#include "shell/window_commands.h"

#include <QFile>
#include <QRegularExpression>
#include <algorithm>

namespace tolvo {

namespace {

constexpr int rememberedUses = 40;
constexpr QStringView withLastSettings = u"with last settings";

/// The favourites that run two tools; the tag of the second is that of one of its tools, and means another
/// thing on the bar.
struct Composite {
    QStringView id;
    QStringView tag;
    QStringView does;
};
constexpr std::array<Composite, 2> composites{{
    {u"edPLA+chPNC", u"chPNC", u"Run Plain characters, then Punctuation"},
    {u"foBOTH", u"foBOTH", u"Run Trim line ends, then Single spaces"},
}};

/// A tool tip may name the tool's key at its end: "Find text (Ctrl-F)".
void splitTip(const QString &tip, FinderEntry &entry) {
    static const QRegularExpression pattern(
        QStringLiteral(R"(^(.*?)\s*\((((?:Ctrl|Alt|Shift)-[A-Za-z0-9-]+)\b[^()]*)\)$)"));
    const QRegularExpressionMatch match = pattern.match(tip);
    entry.does = match.hasMatch() ? match.captured(1) : tip;
    entry.keyNote = match.captured(2);
    entry.key = match.captured(3);
}

void addWords(FinderEntry &entry, const OtherWords &words) {
    const OtherWords::Line line = words.of(entry.id);
    entry.otherWords = line.words;
    entry.example = line.example;
}

/// The two that open the search window do so with either button.
bool asksForSettings(const ToolPtr &tool) {
    return tool && tool->gotDialog() && tool->Token() != QLatin1StringView("edSRC") &&
           tool->Token() != QLatin1StringView("edREP");
}

QList<FinderEntry> toolEntries(const Catalogue &oTools) {
    QList<FinderEntry> entries;
    QString group;
    for (const Catalogue::PanelItem &item : oTools.foundItems()) {
        if (item.token == QLatin1StringView(">")) {
            group = item.label;
            continue;
        }
        FinderEntry entry{.id = item.token, .name = item.label, .group = group};
        splitTip(item.tooltip, entry);
        if (asksForSettings(oTools.tool(item.token)))
            entry.rightClick = withLastSettings.toString();
        entries += entry;
    }
    return entries;
}

QList<FinderEntry> compositeEntries() {
    QList<FinderEntry> entries;
    for (const Composite &composite : composites) {
        const auto *const favourite =
            std::find_if(favourites.begin(), favourites.end(),
                         [&](const Favourite &one) { return QStringView(one.tag) == composite.tag; });
        entries.append({.id = composite.id.toString(),
                        .name = QString::fromUtf16(favourite->tooltip),
                        .group = QStringLiteral("Favourites"),
                        .does = composite.does.toString()});
    }
    return entries;
}

QList<FinderEntry> powerButtonEntries(const CPowerButtonCollection &buttons) {
    QList<FinderEntry> entries;
    for (int i = 0; i < CPowerButtonCollection::buttonCount; ++i) {
        const auto button = buttons.Item(i + 1);
        if (!button || (!button->isDefined() && button->Count() == 0))
            continue;
        const QString number = QStringLiteral("PowerButton %1").arg(i + 1);
        QStringList steps;
        for (int step = 1; step <= button->Count(); ++step) {
            const auto action = button->Item(step);
            if (action->Tool() && !action->switchedOff())
                steps += action->Tool()->Name();
        }
        entries.append({.id = powerButtonId(i),
                        .name = button->isDefined() ? button->Name : number,
                        .group = number,
                        .does = steps.isEmpty() ? QStringLiteral("No steps yet") : steps.join(u", "),
                        .key = QStringLiteral("Ctrl-%1").arg(i + 1),
                        .keyNote = QStringLiteral("Ctrl-%1 or Alt-F%1").arg(i + 1),
                        .rightClick = QStringLiteral("edit")});
    }
    return entries;
}

QList<FinderEntry> commandEntries() {
    QList<FinderEntry> entries;
    for (const WindowCommand &command : windowCommands()) {
        entries.append({.id = command.id.toString(),
                        .name = command.name.toString(),
                        .group = QStringLiteral("Command"),
                        .does = command.does.toString(),
                        .key = command.key.toString(),
                        .keyNote = command.key.toString(),
                        .rightClick = command.rightClick.toString()});
    }
    return entries;
}

} // namespace

OtherWords OtherWords::read(const QString &path) {
    OtherWords result;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return result;
    while (!file.atEnd()) {
        const QString line = fnReadLine(file);
        if (line.startsWith(u'#') || line.isEmpty())
            continue;
        result.m_lines.insert(line.section(u';', 0, 0), {line.section(u';', 1, 1), line.section(u';', 2)});
    }
    return result;
}

QList<FinderEntry> finderEntries(const Catalogue &oTools, const CPowerButtonCollection &buttons,
                                 const OtherWords &words) {
    QList<FinderEntry> entries =
        toolEntries(oTools) + compositeEntries() + powerButtonEntries(buttons) + commandEntries();
    for (FinderEntry &entry : entries)
        addWords(entry, words);
    return entries;
}

void runFound(frmMain &session, const QString &id, bool right) {
    session.bRightButton = right;
    for (const WindowCommand &command : windowCommands()) {
        if (command.id == id) {
            session.guarded(u"runFound", [&] { noteUse(session.services().store, id); });
            std::invoke(command.run, session);
            session.bRightButton = false;
            return;
        }
    }
    const auto *const composite = std::find_if(composites.begin(), composites.end(),
                                               [&](const Composite &one) { return one.id == id; });
    if (composite != composites.end())
        session.imgFavourites_Click(composite->tag.toString());
    else if (id.startsWith(QLatin1StringView("PB")))
        session.imgPower_Click(id.sliced(2).toInt());
    else
        session.ToolDespatcher(id);
    session.bRightButton = false;
}

QString powerButtonId(int index) {
    return QStringLiteral("PB%1").arg(index);
}

QString favouriteId(const QString &tag) {
    for (const Composite &composite : composites) {
        if (composite.tag == tag)
            return composite.id.toString();
    }
    return tag;
}

QStringList lastUsed(const SettingsStore &store) {
    return get(store, settingKeys.finder.lastUsed).split(u'|', Qt::SkipEmptyParts);
}

void noteUse(SettingsStore &store, const QString &id) {
    QStringList ids = lastUsed(store);
    if (!ids.isEmpty() && ids.first() == id)
        return;
    ids.removeAll(id);
    ids.prepend(id);
    set(store, settingKeys.finder.lastUsed, ids.first(qMin(ids.size(), rememberedUses)).join(u'|'));
}

} // namespace tolvo
