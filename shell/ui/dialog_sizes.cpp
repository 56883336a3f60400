// SPDX-License-Identifier: MIT
#include "shell/ui/dialog_sizes.h"

#include "shell/frmMain.h"
#include "shell/ui/window_memory.h"
#include "shell/window_sizes.h"
#include "widgets/screen_fit.h"

#include <QChildEvent>
#include <QDialog>
#include <QLayout>

namespace tolvo {

namespace {

constexpr const auto &sizesKey = settingKeys.windows.sizes;

bool isResizable(const QDialog &dialog) {
    const QLayout *layout = dialog.layout();
    const bool ours = dialog.objectName().startsWith(QLatin1StringView("dlg")) ||
                      dialog.objectName().startsWith(QLatin1StringView("frm"));
    return ours && layout != nullptr && layout->sizeConstraint() != QLayout::SetFixedSize;
}

} // namespace

DialogSizes::DialogSizes(frmMain &session, QWidget &window) : QObject(&window), m_session(session) {
    window.installEventFilter(this);
}

bool DialogSizes::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::ChildAdded) {
        // Its class is not there yet; a dialog shows itself as one when it comes.
        QObject *child = static_cast<QChildEvent *>(event)->child();
        if (child->isWidgetType())
            child->installEventFilter(this);
        return false;
    }
    if ((event->type() != QEvent::Show && event->type() != QEvent::Hide) || event->spontaneous())
        return false;
    auto *dialog = qobject_cast<QDialog *>(watched);
    if (dialog != nullptr && dialog->isWindow() && isResizable(*dialog) && !m_session.bSessionOver)
        event->type() == QEvent::Show ? comes(*dialog) : goes(*dialog);
    return false;
}

void DialogSizes::comes(QDialog &dialog) {
    m_session.guarded(u"DialogSizes", [&] {
        const WindowSizes sizes = readSizes(get(m_session.services().store, sizesKey, presentScreen()));
        const QSize remembered = sizes.value(dialog.objectName(), dialog.size());
        dialog.resize(allowedSize(remembered, dialog.minimumSizeHint(), roomOnScreen(dialog)));
    });
    m_shown[dialog.objectName()] = dialog.size();
}

void DialogSizes::goes(QDialog &dialog) {
    const QString name = dialog.objectName();
    if (dialog.isMaximized() || m_shown.value(name, dialog.size()) == dialog.size())
        return;
    m_session.guarded(u"DialogSizes", [&] {
        SettingsStore &store = m_session.services().store;
        WindowSizes sizes = readSizes(get(store, sizesKey, presentScreen()));
        sizes[name] = dialog.size();
        set(store, sizesKey, written(sizes), presentScreen());
    });
}

} // namespace tolvo
