// SPDX-License-Identifier: MIT
#include "powerbuttons/catalogue.h"

#include "base/failure.h"
#include "base/numbers.h"
#include "base/strings.h"

#include <QDir>
#include <QFile>
#include <QStringDecoder>
#include <limits>

namespace tolvo {

namespace {

constexpr int flagDialog = 1;
constexpr int flagOutOfPanel = 2;
constexpr int flagFound = 4;

/// 0 for a text that is not a number and for a number that no set of flags can be.
int readFlags(const QString &field) {
    const double value = ValueOf(field);
    if (!(value >= 0) || value > std::numeric_limits<int>::max())
        return 0;
    return static_cast<int>(value);
}

/// The bytes of a line as text; a Failure if they are not UTF-8.
QString decodeLine(const QByteArray &bytes) {
    QStringDecoder decoder(QStringDecoder::Utf8, QStringConverter::Flag::Stateless);
    const QString line = decoder.decode(bytes);
    if (decoder.hasError())
        throw Failure(failureNumber::fileAccess, QStringLiteral("the text is not UTF-8"));
    return line.trimmed();
}

} // namespace

Catalogue Catalogue::read(const QString &path) {
    QFile file(path);
    if (!file.exists())
        throw Failure(failureNumber::fileNotFound,
                      QStringLiteral("The tool catalogue %1 is missing").arg(QDir::toNativeSeparators(path)));
    if (!file.open(QIODevice::ReadOnly))
        throw Failure(
            failureNumber::fileAccess,
            QStringLiteral("The tool catalogue %1 can't be read: %2").arg(path, file.errorString()));
    return read(file, path);
}

Catalogue Catalogue::read(QIODevice &file, const QString &name) {
    Catalogue catalogue;
    for (int number = 1; !file.atEnd(); ++number) {
        QByteArray bytes = file.readLine();
        if (number == 1 && bytes.startsWith("\xEF\xBB\xBF"))
            bytes.remove(0, 3);
        try {
            catalogue.addLine(decodeLine(bytes));
        } catch (const Failure &failure) {
            throw Failure(failure.number(),
                          QStringLiteral("%1, line %2: %3").arg(name).arg(number).arg(failure.description()));
        }
    }
    // A line for this token is a doubled key, only noticed here: the entry follows all lines.
    if (!catalogue.add(makeTool(unknownToolName, unknownToolToken, QStringLiteral("Deleted tool"), false)))
        throw Failure(failureNumber::duplicateKey,
                      QStringLiteral("%1: the token '%2' is reserved").arg(name, unknownToolToken));
    return catalogue;
}

void Catalogue::addLine(QString line) {
    if (line.isEmpty() || line.startsWith(u'#'))
        return;
    const QString token = parse(line, u';');
    const QString name = parse(line, u';');
    const int flags = readFlags(parse(line, u';'));
    const ToolPtr tool = makeTool(name, token, line, (flags & flagDialog) != 0);
    if (!add(tool))
        throw Failure(failureNumber::duplicateKey,
                      tool->isHeading()
                          ? QStringLiteral("the heading '%1' is there already").arg(tool->Name())
                          : QStringLiteral("the token '%1' is there already").arg(tool->Token()));
    const PanelItem item{tool->Name(), tool->Token(), tool->Tooltip()};
    const bool inPanel = (flags & flagOutOfPanel) == 0;
    if (inPanel)
        m_panelItems.append(item);
    if (inPanel || (flags & flagFound) != 0)
        m_foundItems.append(item);
}

bool Catalogue::add(const ToolPtr &tool) {
    const QString key = tool->isHeading() ? tool->Token() + tool->Name() : tool->Token();
    if (m_byKey.contains(key))
        return false;
    m_byKey.insert(key, tool);
    m_tools.append(tool);
    return true;
}

} // namespace tolvo
