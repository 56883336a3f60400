// SPDX-License-Identifier: MIT
// The dialogs of the tools that sort and count by a pattern.
#include "text/ui/FieldDialog.h"
#include "text/ui/tool_dialogs.h"

namespace tolvo {

namespace {

QList<FieldLook> patternLooks() {
    FieldLook kind{
        QStringLiteral("K&ind:"),
        {QStringLiteral("Simple text"), QStringLiteral("Wildcards"), QStringLiteral("Regular expression")}};
    kind.firstChoice = static_cast<int>(PatternMode::Simple);
    return {{QStringLiteral("&Pattern:")},
            kind,
            {QStringLiteral("Match &case")},
            {QStringLiteral("Whole words &only")},
            {QStringLiteral("&Special characters (\\t, \\xHH)")}};
}

template <class Settings>
SettingsDialogPtr<Settings> patternDialog(const QString &name, const QString &caption,
                                          const QList<FieldLook> &looks, const QString &sample,
                                          const Settings &settings, const ToolDialogContext &context) {
    return std::make_unique<FieldDialog<Settings>>(
        name, caption, looks, SampleLook{5},
        [sample, choose = context.choose](const Settings &now) {
            return choose ? choose(sample, now) : ChosenLines{sample, {}};
        },
        settings, context,
        [](const Settings &now) {
            return now.mode == PatternMode::RegularExpression
                       ? QStringList{QStringLiteral("chkWholeWords"), QStringLiteral("chkSpecialChars")}
                       : QStringList();
        });
}

} // namespace

SettingsDialogPtr<PatternSortSettings> makeToolDialog(const PatternSortSettings &settings,
                                                      const ToolDialogContext &context) {
    const QList<FieldLook> looks =
        patternLooks() +
        QList<FieldLook>{{QStringLiteral("O&rder:"), orderNames()}, {QStringLiteral("&Descending")}};
    return patternDialog(QStringLiteral("dlgPatternSort"), QStringLiteral("Sort by Pattern"), looks,
                         QStringLiteral("Pears, 10 kg\r\n# for pies\r\nFigs, 9 kg\r\nApples, 100 kg"),
                         settings, context);
}

SettingsDialogPtr<MatchCountSettings> makeToolDialog(const MatchCountSettings &settings,
                                                     const ToolDialogContext &context) {
    return patternDialog(QStringLiteral("dlgMatchCount"), QStringLiteral("Count Matches"), patternLooks(),
                         QStringLiteral("Tea with milk, tea with lemon, no coffee.\r\nMilk for the cat."),
                         settings, context);
}

} // namespace tolvo
