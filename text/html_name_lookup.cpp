// SPDX-License-Identifier: MIT
#include "text/html_names.h"

#include <QHash>
#include <algorithm>
#include <tuple>

namespace tolvo {

namespace {

constexpr int hexadecimal = 16;

struct Names {
    struct Entry {
        QString characters;
        bool bare = false; ///< counts without its semicolon
    };
    /// A name to write: one that older pages know, not in capitals alone, short.
    using Choice = std::tuple<bool, bool, qsizetype, QString>;
    QHash<QString, Entry> byName;
    QHash<char32_t, Choice> byCharacter;
    qsizetype longest = 0;

    Names();
    void add(QByteArrayView entry);
};

Names::Names() {
    const QByteArrayView table = htmlNameTable();
    for (qsizetype start = 0;;) {
        const qsizetype end = table.indexOf(',', start);
        if (end < 0)
            break;
        add(table.sliced(start, end - start).trimmed());
        start = end + 1;
    }
}

void Names::add(QByteArrayView entry) {
    const qsizetype blank = entry.indexOf(' ');
    QByteArrayView name = entry.first(blank);
    const bool bare = name.endsWith('*');
    const bool old = bare || name.endsWith('!');
    if (old)
        name.chop(1);
    QList<char32_t> codes;
    for (const QByteArray &code : entry.sliced(blank + 1).toByteArray().split('+'))
        codes += code.toUInt(nullptr, hexadecimal);
    const QString key = QString::fromLatin1(name);
    longest = std::max(longest, key.size());
    byName[key] = {QString::fromUcs4(codes.data(), codes.size()), bare};
    if (codes.size() != 1)
        return;
    const Choice choice{
        !old, std::count_if(key.begin(), key.end(), [](QChar c) { return c.isUpper(); }) == key.size(),
        key.size(), key};
    const auto other = byCharacter.constFind(codes.first());
    if (other == byCharacter.cend() || choice < *other)
        byCharacter[codes.first()] = choice;
}

const Names &names() {
    static const Names all;
    return all;
}

} // namespace

std::optional<HtmlName> htmlName(QStringView text) {
    qsizetype end = 0;
    while (end < text.size() && end < names().longest && text[end].unicode() < 0x80 &&
           text[end].isLetterOrNumber())
        ++end;
    const auto found = [](QStringView name) { return names().byName.constFind(name.toString()); };
    if (end < text.size() && text[end] == u';') {
        if (const auto entry = found(text.first(end)); entry != names().byName.cend())
            return HtmlName{entry->characters, end + 1};
    }
    constexpr qsizetype longestBare = 6;
    for (qsizetype length = std::min(end, longestBare); length > 1; --length) {
        if (const auto entry = found(text.first(length)); entry != names().byName.cend() && entry->bare)
            return HtmlName{entry->characters, length};
    }
    return {};
}

QString nameForHtml(char32_t character) {
    return std::get<QString>(names().byCharacter.value(character));
}

} // namespace tolvo
