// SPDX-License-Identifier: MIT
#include "powerbuttons/example_buttons.h"

#include "powerbuttons/icon_geometry.h"

#include <array>
#include <span>

namespace tolvo {

namespace {

struct Step {
    const char *token;
    const char *details = ""; ///< settings to run with; a tool without a dialog has none
};

struct Example {
    const char16_t *name;
    const char16_t *iconText;
    double size, x, y;
    std::span<const Step> steps;
};

constexpr auto oneBlankLine = "Single=0, Multiple=1";

/// A mail with quoting marks and hard line ends becomes text that flows again.
constexpr std::array cleanMail{Step{"edSTR"}, Step{"foTRM"}, Step{"foPAR"}, Step{"foSSP"},
                               Step{"foREM", oneBlankLine}};

/// Spacing and punctuation in order, the wording untouched.
constexpr std::array tidyText{Step{"edEOL"}, Step{"foTRA"}, Step{"foSSP"}, Step{"foREM", oneBlankLine},
                              Step{"chPNC"}};

/// Entities and typographic characters out, blank lines reduced.
constexpr std::array webToPlain{Step{"edEOL"}, Step{"edHDC"}, Step{"edPLA"},
                                Step{"foTRM"}, Step{"foSSP"}, Step{"foREM", oneBlankLine}};

constexpr std::array examples{
    Example{u"Clean mail", u"\u2709", 22, 3.5, -5.5, cleanMail},
    Example{u"Tidy text", u"\u00B6", 18, 8, -3.5, tidyText},
    Example{u"Web to plain", u"</>", 13, 4.5, 4, webToPlain},
};

std::shared_ptr<CPowerButton> build(const Example &example, const Catalogue &tools) {
    auto button = std::make_shared<CPowerButton>();
    button->Name = QString::fromUtf16(example.name);
    setIcon(*button, {QString::fromUtf16(example.iconText),
                      {defaultIconFont(), example.size, true, false},
                      example.x,
                      example.y});
    for (const Step &step : example.steps) {
        const ToolPtr tool = tools.tool(QString::fromLatin1(step.token));
        if (!tool)
            return nullptr;
        button->Add(std::make_shared<CAction>(tool,
                                              tool->gotDialog() ? SettingsFrom::Custom : SettingsFrom::Prompt,
                                              QString::fromLatin1(step.details)));
    }
    return button;
}

} // namespace

QList<std::shared_ptr<CPowerButton>> exampleButtons(const Catalogue &tools) {
    QList<std::shared_ptr<CPowerButton>> buttons;
    for (const Example &example : examples) {
        if (auto button = build(example, tools))
            buttons.append(std::move(button));
    }
    return buttons;
}

} // namespace tolvo
