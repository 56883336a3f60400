// SPDX-License-Identifier: MIT
#include "pipe/spelling.h"

#include "base/failure.h"
#include "pipe/text.h"
#include "platform/headless/ConsoleBoxes.h"
#include "shell/headless/HeadlessSession.h"
#include "spelling/found_languages.h"
#include "spelling/hunspell_provider.h"

#include <QFileInfo>

namespace tolvo {

namespace {

/// What the spelling check needs, without windows.
struct SpellingWorld {
    explicit SpellingWorld(const HeadlessWorld &world)
        : services{.store = world.store,
                   .boxes = boxes,
                   .http = network,
                   .word = word,
                   .dataFolder = world.dataFolder,
                   .userFolder = SpellingServices::defaultUserFolder(),
                   .atdEndpoint = {}} {}
    ConsoleBoxes boxes;
    NoNetwork network;
    NoWordAutomation word;
    SpellingServices services;
};

/// Counts lines and characters from 1, on the way from the front of a text to its end. Lines end in LF, CR LF
/// or CR.
class TextPosition {
  public:
    explicit TextPosition(const QString &text) : m_text(text) {}

    void goTo(qsizetype offset) {
        for (; m_offset < offset; ++m_offset) {
            const QChar unit = m_text[m_offset];
            const bool endsLine = unit == u'\n' || (unit == u'\r' && m_text.mid(m_offset + 1, 1) != u"\n");
            if (endsLine) {
                ++m_line;
                m_column = 1;
            } else if (!unit.isLowSurrogate()) {
                ++m_column;
            }
        }
    }
    [[nodiscard]] QString line() const { return QString::number(m_line); }
    [[nodiscard]] QString column() const { return QString::number(m_column); }

  private:
    const QString &m_text;
    qsizetype m_offset = 0;
    qsizetype m_line = 1;
    qsizetype m_column = 1;
};

QString jsonLine(const TextPosition &at, const QString &word, const QStringList &suggestions) {
    QStringList quoted;
    for (const QString &suggestion : suggestions)
        quoted += jsonString(suggestion);
    return QStringLiteral("{\"line\":") + at.line() + QStringLiteral(",\"column\":") + at.column() +
           QStringLiteral(",\"word\":") + jsonString(word) + QStringLiteral(",\"suggestions\":[") +
           quoted.join(u',') + QStringLiteral("]}");
}

QString plainLine(const TextPosition &at, const QString &word, const QStringList &suggestions) {
    const QString front = at.line() + u':' + at.column() + QStringLiteral(": ") + word;
    return suggestions.isEmpty() ? front
                                 : front + QStringLiteral(": ") + suggestions.join(QStringLiteral(", "));
}

LocalDictionary dictionaryOf(const SpellingServices &services, const QString &locale) {
    if (!findDictionary(locale, services))
        throw BadRequest(QStringLiteral("there is no dictionary \"%1\"; --list-dictionaries prints those of "
                                        "this machine")
                             .arg(locale));
    LocalDictionary dictionary;
    try {
        dictionary.initHunspell(services, localeOfFile(locale));
    } catch (const Failure &failure) {
        if (failure.number() != failureNumber::fileNotFound) // a user may have no words of their own
            throw;
    }
    return dictionary;
}

} // namespace

bool listMisspellings(const HeadlessWorld &world, const SpellRequest &request, const QString &text,
                      const std::function<void(const QString &)> &writeLine) {
    SpellingWorld spelling(world);
    LocalDictionary dictionary = dictionaryOf(spelling.services, request.locale);
    HeadlessWindows windows;
    const HeadlessSession session(world.store, world.catalogue, world.extensions, spelling.boxes, windows,
                                  world.dataFolder);
    dictionary.skip(skippedWords(world.store, session.session.oTextMethods));
    const QString checked = text.startsWith(QChar::ByteOrderMark) ? text.sliced(1) : text;
    const CSpellingErrors errors = dictionary.checkHunspell(checked);
    TextPosition at(checked);
    for (const auto &error : errors) {
        at.goTo(error->TextStart());
        const QStringList suggestions = error->SpellingSuggestions().texts();
        writeLine(request.json ? jsonLine(at, error->ErrorText(), suggestions)
                               : plainLine(at, error->ErrorText(), suggestions));
    }
    return errors.Count() > 0;
}

QStringList dictionaryList(const HeadlessWorld &world) {
    const SpellingWorld spelling(world);
    QStringList list;
    for (const FoundLanguage &language : foundLanguages(spelling.services))
        list += QFileInfo(language.files.dic).completeBaseName() + u'\t' + language.name;
    return list;
}

} // namespace tolvo
