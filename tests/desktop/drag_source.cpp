// SPDX-License-Identifier: MIT
// Another program that text and files are dragged from: drag_source text WORDS, drag_source file PATH. All of
// its small window, in the upper left corner of the screen, is what is dragged.
#include <QApplication>
#include <QDrag>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>

namespace {

class Source final : public QLabel {
  public:
    Source(bool isFile, const QString &content) : m_isFile(isFile), m_content(content) {
        setText(QStringLiteral("Drag me"));
        setAlignment(Qt::AlignCenter);
        setWindowFlags(Qt::FramelessWindowHint | Qt::BypassWindowManagerHint); // where it is put
        setGeometry(0, 0, 80, 40);
    }

  protected:
    void mouseMoveEvent(QMouseEvent *) override {
        auto *dragged = new QMimeData;
        if (m_isFile)
            dragged->setUrls({QUrl::fromLocalFile(m_content)});
        else
            dragged->setText(m_content);
        auto *drag = new QDrag(this);
        drag->setMimeData(dragged);
        drag->exec(Qt::CopyAction);
    }

  private:
    bool m_isFile;
    QString m_content;
};

} // namespace

int main(int argc, char **argv) {
    const QApplication application(argc, argv);
    const QStringList words = QApplication::arguments();
    if (words.size() != 3)
        return 2;
    Source source(words[1] == QLatin1StringView("file"), words[2]);
    source.show();
    return QApplication::exec();
}
