// SPDX-License-Identifier: MIT
// oTools: the tool catalogue, read from Tools.dat.
#pragma once

#include "powerbuttons/CTool.h"

#include <QHash>
#include <QIODevice>
#include <QList>
#include <QString>

namespace tolvo {

/// An ordered list of tools with keys, in file order: a tool's key is its token, a heading's is ">" and its
/// name. Last comes the entry "toolNULL" for tools that a PowerButton names and the catalogue doesn't know.
class Catalogue {
  public:
    /// The name of the file, in the program's folder.
    static constexpr QLatin1StringView fileName{"Tools.dat"};

    /// One visible line for the panel of tools.
    struct PanelItem {
        QString label; ///< plain text: an "&" in it marks no key
        QString token; ///< ">" for a category
        QString tooltip;
    };

    /// Reads the file at `path`. Throws a Failure that says what is wrong and in which line: no file (53), a
    /// doubled key (457), text that isn't UTF-8 (75), a line too long to be parsed (6). A byte order mark is
    /// skipped. `name` is what messages call the file.
    [[nodiscard]] static Catalogue read(const QString &path);
    [[nodiscard]] static Catalogue read(QIODevice &file, const QString &name = fileName);

    /// All entries, in file order, "toolNULL" at the end.
    [[nodiscard]] const QList<ToolPtr> &tools() const { return m_tools; }
    /// The tool of a token (or of ">" and a heading's name); null if there is none.
    [[nodiscard]] ToolPtr tool(const QString &key) const { return m_byKey.value(key); }
    /// The lines that the panel shows, in file order.
    [[nodiscard]] const QList<PanelItem> &panelItems() const { return m_panelItems; }
    /// The lines that a user can find by typing: those of the panel and tools for which it has no room.
    [[nodiscard]] const QList<PanelItem> &foundItems() const { return m_foundItems; }

  private:
    /// False for a key that is there already; nothing is added then.
    [[nodiscard]] bool add(const ToolPtr &tool);
    void addLine(QString line);

    QList<ToolPtr> m_tools;
    QHash<QString, ToolPtr> m_byKey;
    QList<PanelItem> m_panelItems;
    QList<PanelItem> m_foundItems;
};

} // namespace tolvo
