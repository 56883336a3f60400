// SPDX-License-Identifier: MIT
#include "shell/text_troubles.h"

#include "base/failure.h"
#include "base/strings.h"
#include "platform/headless/MemoryTextBox.h"
#include "shell/tool_table.h"
#include "shell/trouble_rules.h"
#include "text/cTextMethods.h"
#include "text/silent_text_host.h"

namespace tolvo {

namespace {

struct Rule {
    const char16_t *token;
    const char16_t *words;
    /// Where the trouble shows; empty if there is too little of it to speak of.
    QList<LinePart> (*places)(const TextLines &);
};

// The most useful first.
constexpr Rule rules[] = {
    {u"edSTR", u"mail quotes", mailQuotes},
    {u"foPAR", u"hard-wrapped lines", wrappedLines},
    {u"liRLN", u"line numbers", lineNumbers},
    {u"edHDC", u"HTML codes", htmlCodes},
    {u"edUDC", u"web address codes", addressCodes},
    {u"ccSEN", u"all capitals", allCapitals},
    {u"edEOL", u"mixed line ends", mixedLineEnds},
    {u"foSSP", u"double spaces", doubleBlanks},
    {u"foREM", u"blank lines in a row", blankLines},
    {u"liREM", u"list numbers", listNumbers},
    {u"liRMB", u"bullets", bullets},
    {u"foTRA", u"spaces at line ends", trailingBlanks},
    {u"edPLA", u"curly quotes", curlyQuotes},
};

/// Whether the tool of a token would change the text.
class Mender {
  public:
    explicit Mender(const QString &text) : m_engine(m_host, [](const QString &) { return false; }) {
        m_box.setText(text);
    }

    bool mends(QStringView token) {
        const ToolOperation &operation = toolRow(token)->operation;
        const ToolSettings settings = operation.settings ? operation.settings() : ToolSettings();
        try {
            const ToolContext context{m_engine, m_box, m_host};
            const auto mended =
                operation.run({.context = context, .text = m_box.Text(), .settings = &settings});
            return mended && *mended != m_box.Text();
        } catch (const Failure &) {
            return false; // a tool that can't work on the text is no remedy
        }
    }

  private:
    SilentTextHost m_host;
    MemoryTextBox m_box{MemoryTextBox::unlimited};
    cTextMethods m_engine;
};

} // namespace

QList<Trouble> textTroubles(const QString &text, const Cancellation &cancellation) {
    const TextLines lines(text);
    Mender mender(text);
    QList<Trouble> found;
    for (const Rule &rule : rules) {
        if (cancellation.cancelled() || found.size() == mostTroubles)
            break;
        if (const QList<LinePart> places = rule.places(lines); !places.isEmpty() && mender.mends(rule.token))
            found += {QString::fromUtf16(rule.token), QString::fromUtf16(rule.words), places};
    }
    return found;
}

} // namespace tolvo
