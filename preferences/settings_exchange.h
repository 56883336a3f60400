// SPDX-License-Identifier: MIT
// Export and import of settings, in files of the registry editor's format.
#pragma once

#include <QByteArray>
#include <QString>

namespace tolvo {

class SettingsStore;

/// What is written: the whole settings tree, or its section PowerButtons alone. Statistics are never written.
enum class ExportScope { Everything, PowerButtons };

/// The bytes of such a file.
[[nodiscard]] QByteArray exportedSettings(const SettingsStore &store, ExportScope scope);
/// Writes the file, all or nothing: where that fails, a file that was there stays as it was. Throws a Failure
/// that says why.
void exportSettings(const SettingsStore &store, ExportScope scope, const QString &fileName);

/// Merges the file into the store, in one transaction. Throws a Failure whose description names the line: an
/// error in the file, or a key outside the settings of this program. Nothing has been changed then.
void importSettings(SettingsStore &store, const QByteArray &file);
void importSettings(SettingsStore &store, const QString &fileName);

} // namespace tolvo
