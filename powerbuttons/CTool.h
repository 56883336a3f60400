// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <memory>

namespace tolvo {

/// One entry of the tool catalogue, immutable after init.
class CTool {
  public:
    /// Every "&&" of the name becomes a single "&".
    void init(const QString &name, const QString &token, const QString &tooltip, bool gotDialog);

    [[nodiscard]] const QString &Name() const { return m_name; }
    /// The name without the dots that stand for a dialog.
    [[nodiscard]] QString plainName() const;
    /// The key of the tool, ">" for a group heading.
    [[nodiscard]] const QString &Token() const { return m_token; }
    [[nodiscard]] const QString &Tooltip() const { return m_tooltip; }
    /// The tool has a settings dialog.
    [[nodiscard]] bool gotDialog() const { return m_gotDialog; }

    [[nodiscard]] bool isHeading() const { return m_token == QLatin1StringView(">"); }

  private:
    QString m_name;
    QString m_token;
    QString m_tooltip;
    bool m_gotDialog = false;
};

/// Entries are shared between the catalogue and the Actions.
using ToolPtr = std::shared_ptr<const CTool>;

/// An entry for the catalogue: see CTool::init().
[[nodiscard]] ToolPtr makeTool(const QString &name, const QString &token, const QString &tooltip,
                               bool gotDialog);

/// Token of the entry that stands for tools which a PowerButton names and the catalogue doesn't know.
inline constexpr QLatin1StringView unknownToolToken("toolNULL");
/// Its name, by which the editor keeps it out of its tree.
inline constexpr QLatin1StringView unknownToolName("NULL");

} // namespace tolvo
