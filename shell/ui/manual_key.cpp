// SPDX-License-Identifier: MIT
#include "shell/ui/manual_key.h"

#include "platform/message_box.h"
#include "platform/processes.h"
#include "text/ui/ToolDialog.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QKeyEvent>
#include <QUrl>
#include <QWidget>
#include <array>

namespace tolvo {

namespace {

struct PageOfWindow {
    QLatin1StringView window; ///< its object name
    QLatin1StringView page;
};

constexpr std::array pages{
    PageOfWindow{QLatin1StringView("frmStats"), QLatin1StringView("tools")},
    PageOfWindow{QLatin1StringView("frmSearch"), QLatin1StringView("search")},
    PageOfWindow{QLatin1StringView("frmSearchResults"), QLatin1StringView("search")},
    PageOfWindow{QLatin1StringView("frmPowerButton"), QLatin1StringView("powerbuttons")},
    PageOfWindow{QLatin1StringView("dlgChoosePB"), QLatin1StringView("powerbuttons")},
    PageOfWindow{QLatin1StringView("dlgEditIcon"), QLatin1StringView("powerbuttons")},
    PageOfWindow{QLatin1StringView("dlgPickCharacter"), QLatin1StringView("powerbuttons")},
    PageOfWindow{QLatin1StringView("dlgShareButton"), QLatin1StringView("powerbuttons")},
    PageOfWindow{QLatin1StringView("dlgTakeButton"), QLatin1StringView("powerbuttons")},
    PageOfWindow{QLatin1StringView("dlgSpelling"), QLatin1StringView("spelling")},
    PageOfWindow{QLatin1StringView("dlgSpellLanguage"), QLatin1StringView("spelling")},
    PageOfWindow{QLatin1StringView("dlgHunspellLanguage"), QLatin1StringView("spelling")},
    PageOfWindow{QLatin1StringView("dlgReadDicsProgress"), QLatin1StringView("spelling")},
    PageOfWindow{QLatin1StringView("dlgDicQuickList"), QLatin1StringView("spelling")},
    PageOfWindow{QLatin1StringView("frmDictionaries"), QLatin1StringView("spelling")},
    PageOfWindow{QLatin1StringView("UserDictionaryWindow"), QLatin1StringView("spelling")},
    PageOfWindow{QLatin1StringView("dlgPreferences"), QLatin1StringView("options")},
    PageOfWindow{QLatin1StringView("keySheet"), QLatin1StringView("keys")},
    PageOfWindow{QLatin1StringView("dlgGoToLine"), QLatin1StringView("keys")},
    PageOfWindow{QLatin1StringView("dlgConfirmClose"), QLatin1StringView("index")},
    PageOfWindow{QLatin1StringView("frmAbout"), QLatin1StringView("index")},
    PageOfWindow{QLatin1StringView("ThirdPartiesWindow"), QLatin1StringView("index")},
};

} // namespace

QString manualPageOf(const QWidget *control) {
    for (const QWidget *widget = control; widget != nullptr; widget = widget->parentWidget()) {
        if (qobject_cast<const ToolDialog *>(widget) != nullptr)
            return QStringLiteral("tools");
        for (const auto &[window, page] : pages) {
            if (widget->objectName() == window)
                return page;
        }
    }
    return {};
}

ManualKey::ManualKey(Processes &processes, MessageBoxes &boxes, QString folder, QWidget &window)
    : QObject(&window), m_processes(processes), m_boxes(boxes), m_folder(std::move(folder)) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool ManualKey::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto *key = static_cast<QKeyEvent *>(event);
    if (key->key() != Qt::Key_F1 || key->modifiers() != Qt::NoModifier)
        return false;
    const QString page = manualPageOf(qobject_cast<QWidget *>(watched));
    if (page.isEmpty())
        return false;
    const QString file = m_folder + page + QStringLiteral(".html");
    if (!QFileInfo::exists(file))
        m_boxes.show({.text = QStringLiteral("The manual is not installed")});
    else if (!m_processes.open(QString::fromLatin1(QUrl::fromLocalFile(file).toEncoded())))
        m_boxes.show({.text = QStringLiteral("There is no program to show the manual with: ") + file});
    return true;
}

} // namespace tolvo
