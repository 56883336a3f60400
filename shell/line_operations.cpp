// SPDX-License-Identifier: MIT
#include "shell/line_operations.h"

#include "shell/line_answers.h"
#include "text/column_choice.h"
#include "text/text_host.h"

namespace tolvo {

QString removeDuplicates(const ToolInput &in, const DuplicateSettings &settings) {
    return withoutLines(in, withoutDuplicates(in.text, settings));
}

QString chooseEveryLine(const ToolInput &in, const EveryLineSettings &settings) {
    return withoutLines(in, everyLine(in.text, settings));
}

QString chooseColumns(const ToolInput &in, const ColumnSettings &settings) {
    const ChosenLines chosen = chosenColumns(in.text, settings);
    if (!chosen.trouble.isEmpty())
        return unchanged(in, chosen.trouble);
    in.context.host.setStatus(settings.drop ? QStringLiteral("Columns dropped")
                                            : QStringLiteral("Columns chosen"));
    return chosen.text;
}

} // namespace tolvo
