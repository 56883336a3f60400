// SPDX-License-Identifier: MIT
#include "preferences/options.h"

#include "base/application.h"
#include "base/conversions.h"
#include "base/numbers.h"
#include "base/strings.h"
#include "preferences/settings_store.h"
#include "preferences/settings_table.h"

namespace tolvo {

namespace {

constexpr QStringView preferences = u"Preferences";
const QString userExtensions = QStringLiteral("Preferences\\UserFileExtensions");

void writeFont(SettingsStore &store, const QString &prefix, const Font &font) {
    writeSetting(store, preferences, prefix + QStringLiteral("_FontName"), font.name);
    writeSetting(store, preferences, prefix + QStringLiteral("_FontBold"), flagWord(font.bold));
    writeSetting(store, preferences, prefix + QStringLiteral("_FontItalic"), flagWord(font.italic));
    writeSetting(store, preferences, prefix + QStringLiteral("_FontSize"), numberText(font.size));
}

} // namespace

ProgramOptions loadOptions(const SettingsStore &store, const std::array<Font, 2> &fonts, bool useProportional,
                           bool wordWrap, const std::function<bool(const QString &)> &isSystemExtension) {
    ProgramOptions options;
    options.fonts = fonts;
    options.useProportional = useProportional;
    options.wordWrap = wordWrap;
    for (const QString &extension : readList(store, userExtensions)) {
        if (!isSystemExtension(extension))
            options.extensions += extension;
    }
    options.fullDomainList = readFlag(store, preferences, u"TLD_Full");
    options.showTips = readFlag(store, preferences, u"Show Tips at Startup");
    options.sounds = readFlag(store, preferences, u"Sounds");
    options.checkUpdates = readFlag(store, preferences, u"CheckUpdates");
    options.allowStats = readFlag(store, preferences, u"AllowStats");
    options.provider = toIntegerOr(readSetting(store, u"Spelling", u"Provider"), options.provider);
    return options;
}

void saveOptions(SettingsStore &store, const ProgramOptions &options) {
    SettingsStore::Transaction all(store);
    writeFont(store, QStringLiteral("Prop"), options.fonts[0]);
    writeFont(store, QStringLiteral("Fixed"), options.fonts[1]);
    writeSetting(store, preferences, u"FontUseProp", flagDigit(options.useProportional));
    writeSetting(store, preferences, u"Show Tips at Startup", flagDigit(options.showTips));
    writeSetting(store, preferences, u"CheckUpdates", flagDigit(options.checkUpdates));
    writeSetting(store, preferences, u"AllowStats", flagDigit(options.allowStats));
    writeSetting(store, preferences, u"Sounds", flagDigit(options.sounds));
    writeSetting(store, u"Spelling", u"Provider", QString::number(options.provider));
    writeList(store, userExtensions, options.extensions);
    writeSetting(store, preferences, u"TLD_Full", flagWord(options.fullDomainList));
    all.commit();
}

QString FontDescription(const Font &font) {
    return font.name + (font.bold ? QStringLiteral(" Bold") : QString()) +
           (font.italic ? QStringLiteral(" Italic") : QString()) + u' ' +
           QString::number(static_cast<int>(roundHalfToEven(font.size))) + QStringLiteral(" pt");
}

QString lastCheckText(const QString &startDate, const QDateTime &now) {
    const std::optional<QDateTime> start = dateIn(startDate);
    if (!start)
        return QStringLiteral("You have never checked for updates");
    const qint64 days = start->secsTo(now) / (24LL * 60 * 60);
    return FillTemplate(QStringLiteral("You last checked for updates %0 days ago"), {groupedNumber(days)});
}

} // namespace tolvo
