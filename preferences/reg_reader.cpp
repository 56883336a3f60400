// SPDX-License-Identifier: MIT
#include "base/code_page.h"
#include "base/failure.h"
#include "preferences/reg_file.h"
#include "preferences/reg_text.h"

namespace tolvo {

namespace {

/// Blanks between the parts of a line.
QStringView withoutBlanks(QStringView text) {
    while (!text.isEmpty() && (text.front() == u' ' || text.front() == u'\t'))
        text = text.sliced(1);
    return text;
}

/// What the registry calls the types that settings don't have.
QString typeName(QStringView code) {
    constexpr struct {
        QStringView code;
        QStringView name;
    } types[] = {{u"0", u"REG_NONE"},
                 {u"2", u"REG_EXPAND_SZ"},
                 {u"3", u"REG_BINARY"},
                 {u"4", u"REG_DWORD"},
                 {u"5", u"REG_DWORD_BIG_ENDIAN"},
                 {u"6", u"REG_LINK"},
                 {u"7", u"REG_MULTI_SZ"},
                 {u"8", u"REG_RESOURCE_LIST"},
                 {u"9", u"REG_FULL_RESOURCE_DESCRIPTOR"},
                 {u"a", u"REG_RESOURCE_REQUIREMENTS_LIST"},
                 {u"b", u"REG_QWORD"}};
    for (const auto &type : types) {
        if (type.code.compare(code, Qt::CaseInsensitive) == 0)
            return type.name.toString();
    }
    return QStringLiteral("number %1").arg(code);
}

class Reader {
  public:
    explicit Reader(const QString &text) : m_lines(text) {}

    QList<RegKey> read();

  private:
    void readHead();
    void readKey(QStringView line);
    void readValue(QStringView line);
    void readData(QStringView data, RegValue &value);
    [[nodiscard]] QString readQuoted(QStringView &rest) const;
    [[nodiscard]] QString readHex(QStringView data);
    void expectEnd(QStringView rest) const;
    [[noreturn]] void fail(const QString &what) const { failInLine(m_lines.number(), what); }

    RegLines m_lines;
    bool m_versionFour = false;
    QList<RegKey> m_keys;
};

void Reader::readHead() {
    const QStringView head = m_lines.next();
    m_versionFour = head == u"REGEDIT4";
    if (!m_versionFour && head != u"Windows Registry Editor Version 5.00")
        fail(QStringLiteral("this is not a file of the registry editor, version 5.00 or 4"));
}

QList<RegKey> Reader::read() {
    readHead();
    while (!m_lines.atEnd()) {
        const QStringView line = m_lines.next();
        if (line.isEmpty() || line.startsWith(u';'))
            continue;
        if (line.startsWith(u'['))
            readKey(line);
        else if (line.startsWith(u'"') || line.startsWith(u'@'))
            readValue(line);
        else
            fail(QStringLiteral("neither a key, a value nor a comment"));
    }
    return std::move(m_keys);
}

/// After a key or a value only a comment may follow.
void Reader::expectEnd(QStringView rest) const {
    rest = withoutBlanks(rest);
    if (!rest.isEmpty() && !rest.startsWith(u';'))
        fail(QStringLiteral("unexpected text after the end"));
}

void Reader::readKey(QStringView line) {
    const qsizetype end = line.lastIndexOf(u']');
    if (end < 0)
        fail(QStringLiteral("the closing bracket of the key is missing"));
    expectEnd(line.sliced(end + 1));
    RegKey key;
    key.line = m_lines.number();
    QStringView name = line.sliced(1, end - 1);
    key.deleted = name.startsWith(u'-');
    if (key.deleted)
        name = name.sliced(1);
    const qsizetype level = name.indexOf(u'\\');
    key.root = (level < 0 ? name : name.first(level)).toString();
    if (level >= 0)
        key.path = name.sliced(level + 1).toString();
    m_keys += key;
}

void Reader::readValue(QStringView line) {
    if (m_keys.isEmpty())
        fail(QStringLiteral("a value before the first key"));
    if (m_keys.back().deleted)
        fail(QStringLiteral("a value below a key that is to be deleted"));
    RegValue value;
    value.line = m_lines.number();
    QStringView rest = line.sliced(1);
    if (line.startsWith(u'"'))
        value.entry.name = readQuoted(rest);
    rest = withoutBlanks(rest);
    if (!rest.startsWith(u'='))
        fail(QStringLiteral("the equals sign after the name is missing"));
    readData(withoutBlanks(rest.sliced(1)), value);
    m_keys.back().values += value;
}

void Reader::readData(QStringView data, RegValue &value) {
    if (data.startsWith(u'"')) {
        QStringView rest = data.sliced(1);
        value.entry.value = readQuoted(rest);
        expectEnd(rest);
        return;
    }
    if (data.startsWith(u'-')) {
        value.deleted = true;
        expectEnd(data.sliced(1));
        return;
    }
    const qsizetype colon = data.indexOf(u':');
    const QStringView type = colon < 0 ? QStringView() : data.first(colon);
    QString refused;
    if (type.compare(u"hex(1)", Qt::CaseInsensitive) == 0) {
        value.entry.value = readHex(data.sliced(colon + 1));
        return;
    }
    if (type.compare(u"dword", Qt::CaseInsensitive) == 0)
        refused = typeName(u"4");
    else if (type.compare(u"hex", Qt::CaseInsensitive) == 0)
        refused = typeName(u"3");
    else if (type.startsWith(u"hex(", Qt::CaseInsensitive) && type.endsWith(u')'))
        refused = typeName(type.sliced(4).chopped(1));
    else
        fail(QStringLiteral("the value is not a text in quotation marks"));
    fail(QStringLiteral("the value '%1' has the type %2; settings are texts (REG_SZ)")
             .arg(value.entry.name, refused));
}

/// The text up to the closing quotation mark; `rest` becomes what follows it.
QString Reader::readQuoted(QStringView &rest) const {
    QString text;
    for (qsizetype i = 0; i < rest.size(); ++i) {
        const QChar unit = rest.at(i);
        if (unit == u'"') {
            rest = rest.sliced(i + 1);
            return text;
        }
        if (unit != u'\\') {
            text += unit;
            continue;
        }
        const QChar escaped = ++i < rest.size() ? rest.at(i) : QChar(u'\n');
        if (escaped == u'\\' || escaped == u'"')
            text += escaped;
        else if (escaped == u'n') // some registry editors write line ends so
            text += u'\n';
        else if (escaped == u'r')
            text += u'\r';
        else if (escaped == u'0')
            text += QChar(u'\0');
        else if (i < rest.size())
            fail(QStringLiteral("unknown escape '\\%1'").arg(escaped));
    }
    fail(QStringLiteral("the closing quotation mark is missing"));
}

/// The line up to a semicolon.
QStringView withoutComment(QStringView line) {
    const qsizetype comment = line.indexOf(u';');
    return comment < 0 ? line : line.first(comment);
}

/// Hexadecimal bytes between commas, going on in the next line after a backslash.
QString Reader::readHex(QStringView data) {
    QByteArray bytes;
    QStringView rest = withoutComment(data);
    bool complete = rest.trimmed().isEmpty();
    while (!complete) {
        const qsizetype comma = rest.indexOf(u',');
        const QStringView field = (comma < 0 ? rest : rest.first(comma)).trimmed();
        if (comma < 0 && (field == u"\\" || field.isEmpty())) {
            if (field.isEmpty() || m_lines.atEnd())
                fail(QStringLiteral("the bytes of the value are cut off"));
            rest = withoutComment(m_lines.next());
            continue;
        }
        bool ok = false;
        const uint byte = field.toUInt(&ok, 16);
        if (!ok || field.size() > 2)
            fail(QStringLiteral("'%1' is not a hexadecimal byte")
                     .arg(field.first(qMin(field.size(), qsizetype{20}))));
        bytes += static_cast<char>(byte);
        complete = comma < 0;
        rest = complete ? QStringView() : rest.sliced(comma + 1);
    }
    QString text;
    if (m_versionFour) {
        for (const char byte : bytes)
            text += QChar(fromAnsi(static_cast<std::uint8_t>(byte)));
    } else {
        if (bytes.size() % 2 != 0)
            fail(QStringLiteral("the bytes of the value end in half a character"));
        for (qsizetype i = 0; i < bytes.size(); i += 2)
            text += QChar(static_cast<uchar>(bytes.at(i)), static_cast<uchar>(bytes.at(i + 1)));
    }
    if (text.endsWith(QChar(u'\0')))
        text.chop(1);
    return text;
}

} // namespace

QList<RegKey> readRegFile(const QByteArray &file) {
    const QString text = decodeRegFile(file);
    return Reader(text).read();
}

} // namespace tolvo
