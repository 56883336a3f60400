// SPDX-License-Identifier: MIT
// The dialogs of the tools that have settings: one maker for each settings struct. A struct without a maker
// doesn't compile.
#pragma once

#include "text/ui/ToolDialog.h"

namespace tolvo {

// Each maker gives the dialog filled with the settings. Its source is named after the dialog.

/// dlgIndent: what is put before lines or taken off again.
[[nodiscard]] SettingsDialogPtr<IndentSettings> makeToolDialog(const IndentSettings &settings,
                                                               const ToolDialogContext &context);
/// dlgWordWrap: the page width, and how lines fill it.
[[nodiscard]] SettingsDialogPtr<WordWrapSettings> makeToolDialog(const WordWrapSettings &settings,
                                                                 const ToolDialogContext &context);
/// dlgRemLines: which blank lines go.
[[nodiscard]] SettingsDialogPtr<RemoveLinesSettings> makeToolDialog(const RemoveLinesSettings &settings,
                                                                    const ToolDialogContext &context);
/// dlgBullet: which bullet is put before lines, with a sample of it.
[[nodiscard]] SettingsDialogPtr<BulletSettings> makeToolDialog(const BulletSettings &settings,
                                                               const ToolDialogContext &context);
/// dlgNumberStyle: how lines are numbered, with a sample of it.
[[nodiscard]] SettingsDialogPtr<NumberListSettings> makeToolDialog(const NumberListSettings &settings,
                                                                   const ToolDialogContext &context);
/// dlgNumLines: how the lines of a listing are numbered, with a sample of it.
[[nodiscard]] SettingsDialogPtr<LineNumberSettings> makeToolDialog(const LineNumberSettings &settings,
                                                                   const ToolDialogContext &context);

// The tools of lines

/// dlgSortLines: by what the lines are sorted, with a sample of it.
[[nodiscard]] SettingsDialogPtr<SortLinesSettings> makeToolDialog(const SortLinesSettings &settings,
                                                                  const ToolDialogContext &context);
/// dlgDuplicates: which lines are alike, and which of them stays, with a sample of it.
[[nodiscard]] SettingsDialogPtr<DuplicateSettings> makeToolDialog(const DuplicateSettings &settings,
                                                                  const ToolDialogContext &context);
/// dlgPatternLines: which lines hold a pattern, with a sample of it.
[[nodiscard]] SettingsDialogPtr<PatternLinesSettings> makeToolDialog(const PatternLinesSettings &settings,
                                                                     const ToolDialogContext &context);
/// dlgPatternSort: by which matches lines are sorted, with a sample of it.
[[nodiscard]] SettingsDialogPtr<PatternSortSettings> makeToolDialog(const PatternSortSettings &settings,
                                                                    const ToolDialogContext &context);
/// dlgMatchCount: which matches are counted, with a sample of it.
[[nodiscard]] SettingsDialogPtr<MatchCountSettings> makeToolDialog(const MatchCountSettings &settings,
                                                                   const ToolDialogContext &context);
/// dlgAroundLines: what is put around lines, with a sample of it.
[[nodiscard]] SettingsDialogPtr<AroundLinesSettings> makeToolDialog(const AroundLinesSettings &settings,
                                                                    const ToolDialogContext &context);
/// dlgSeparator: what parts or joins lines, with a sample of it.
[[nodiscard]] SettingsDialogPtr<SeparatorSettings> makeToolDialog(const SeparatorSettings &settings,
                                                                  const ToolDialogContext &context);
/// dlgEveryLine: which lines are counted out, with a sample of it.
[[nodiscard]] SettingsDialogPtr<EveryLineSettings> makeToolDialog(const EveryLineSettings &settings,
                                                                  const ToolDialogContext &context);

/// dlgColumns: which columns stay, with a sample of it.
[[nodiscard]] SettingsDialogPtr<ColumnSettings> makeToolDialog(const ColumnSettings &settings,
                                                               const ToolDialogContext &context);

// Those of dlgWriting.cpp, each with a sample

/// dlgTypography: the language whose rules count.
[[nodiscard]] SettingsDialogPtr<TypographySettings> makeToolDialog(const TypographySettings &settings,
                                                                   const ToolDialogContext &context);
/// dlgLanguageCase: the language, and which capitals.
[[nodiscard]] SettingsDialogPtr<LanguageCaseSettings> makeToolDialog(const LanguageCaseSettings &settings,
                                                                     const ToolDialogContext &context);
/// dlgParagraphWrap: how wide lines may be.
[[nodiscard]] SettingsDialogPtr<ParagraphWrapSettings> makeToolDialog(const ParagraphWrapSettings &settings,
                                                                      const ToolDialogContext &context);

/// Shows the dialog of the settings modally. False if the user cancelled; otherwise they are the user's.
[[nodiscard]] bool askInToolDialog(ToolSettings &settings, const ToolDialogContext &context);

/// Edits the settings string of an Action: what it leaves open is as in `lastUsed`. Nothing if the user
/// cancelled.
[[nodiscard]] std::optional<QString> editInToolDialog(const ToolSettings &lastUsed, const QString &details,
                                                      const ToolDialogContext &context);

} // namespace tolvo
