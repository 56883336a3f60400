// SPDX-License-Identifier: MIT
#include "powerbuttons/button_file.h"

#include "base/CParams.h"
#include "base/text_encoding.h"
#include "powerbuttons/button_file_reader.h"
#include "powerbuttons/file_values.h"
#include "powerbuttons/shared_steps.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>
#include <QStringList>

namespace tolvo {

namespace {

constexpr qsizetype longestText = 1'000'000;

QString tooLong() {
    return QStringLiteral("This is too long for a PowerButton");
}

class Writer {
  public:
    explicit Writer(const SharedButtons &shared) : m_shared(shared) {
        m_text = QStringLiteral("%1 %2\n").arg(buttonFileTitle).arg(buttonFileVersion);
        for (qsizetype i = 0; i < shared.buttons.size(); ++i)
            write(*shared.buttons.at(i), static_cast<int>(i) + 1);
    }

    [[nodiscard]] const QString &text() const { return m_text; }

  private:
    void line(QLatin1StringView key, const QString &value, const QString &remark = {}) {
        m_text += key + u':';
        if (!value.isEmpty())
            m_text += u' ' + value;
        if (!remark.isEmpty())
            m_text += QStringLiteral(" # ") + remark;
        m_text += u'\n';
    }
    void number(QLatin1StringView key, double value) {
        line(key, QString::number(value, 'g', QLocale::FloatingPointShortest));
    }
    void flag(QLatin1StringView key, bool value) {
        if (value)
            line(key, QString(buttonFileYes));
    }

    void write(const CPowerButton &button, int number) {
        m_text += u'\n';
        if (number > 1)
            line(ButtonFileKey::button, QString::number(number));
        line(ButtonFileKey::name, fileValue(button.Name));
        line(ButtonFileKey::icon, fileValue(button.IconText));
        line(ButtonFileKey::font, fileValue(button.IconFontName));
        this->number(ButtonFileKey::size, button.IconFontSize);
        flag(ButtonFileKey::bold, button.IconFontBold);
        flag(ButtonFileKey::italic, button.IconFontItalic);
        this->number(ButtonFileKey::x, button.IconX);
        this->number(ButtonFileKey::y, button.IconY);
        m_text += u'\n';
        for (int position = 1; position <= button.Count(); ++position)
            write(*button.Item(position));
    }

    void write(const CAction &action) {
        const QString name = action.Tool()->plainName();
        const std::optional<int> target = targetOfStep(action);
        line(ButtonFileKey::step, action.Tool()->Token(),
             target ? QStringLiteral("%1: %2").arg(name, fileValue(m_shared.buttons.at(*target - 1)->Name))
                    : name);
        if (action.Tool()->gotDialog() || action.DlgOption() != SettingsFrom::Prompt)
            line(ButtonFileKey::settings, settingsWord(action.DlgOption()));
        if (action.switchedOff())
            line(ButtonFileKey::switched, QString(buttonFileOff));
        if (action.Details().isEmpty())
            return;
        for (const QString &piece : action.Details().split(settingsSeparator))
            line(ButtonFileKey::set, fileValue(piece));
    }

    const SharedButtons &m_shared;
    QString m_text;
};

/// The line, from 1, with the first bytes that are not UTF-8.
int firstBadLine(const QByteArray &bytes) {
    int line = 1;
    for (qsizetype at = 0; at < bytes.size(); ++line) {
        qsizetype end = bytes.indexOf('\n', at);
        end = end < 0 ? bytes.size() : end + 1;
        QStringDecoder decoder(QStringDecoder::Utf8);
        const QString text = decoder(QByteArrayView(bytes).sliced(at, end - at));
        if (decoder.hasError())
            return line;
        at = end;
    }
    return line;
}

} // namespace

SharedButtons readButtonFile(const QString &text, const Catalogue &tools) {
    if (text.size() > longestText)
        return {{}, tooLong()};
    SharedButtons read = ButtonFileReader(tools).read(text);
    if (read.trouble.isEmpty())
        return read;
    return {{}, read.trouble};
}

SharedButtons readButtonFile(const QByteArray &bytes, const Catalogue &tools) {
    if (bytes.size() > 2 * longestText)
        return {{}, tooLong()};
    if (bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF"))
        return readButtonFile(decodedText(bytes).value_or(QString()), tools);
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(bytes);
    if (decoder.hasError())
        return {{}, QStringLiteral("Line %1: this is not UTF-8").arg(firstBadLine(bytes))};
    return readButtonFile(text, tools);
}

SharedButtons loadButtonFile(const QString &path, const Catalogue &tools) {
    const QFileInfo info(path);
    if (!info.isFile()) // pipes and devices would wait for ever
        return {{}, QStringLiteral("There is no file \"%1\"").arg(info.fileName())};
    QFile file(path);
    const bool opened = file.open(QIODevice::ReadOnly);
    const QByteArray bytes = opened ? file.read(2 * longestText + 1) : QByteArray();
    if (!opened || file.error() != QFileDevice::NoError)
        return {{}, QStringLiteral("\"%1\" can't be read: %2").arg(info.fileName(), file.errorString())};
    return readButtonFile(bytes, tools);
}

QString buttonFileText(const SharedButtons &shared) {
    return Writer(shared).text();
}

} // namespace tolvo
