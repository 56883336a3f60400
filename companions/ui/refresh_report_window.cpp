// SPDX-License-Identifier: MIT
#include "companions/refresh_report.h"
#include "companions/ui/RefreshWindow.h"
#include "platform/network/NetworkHttpClient.h"
#include "widgets/dress_application.h"

#include <QApplication>
#include <QTimer>

namespace tolvo {

RefreshOutcome refreshAloud(int argc, char **argv, const std::function<RefreshOutcome(HttpClient &)> &work) {
    const QApplication application(argc, argv);
    dressApplication();
    RefreshWindow window;
    window.show();
    NetworkHttpClient client;
    // The window lives on while the server thinks; closing it ends the request.
    client.guardInput = [] { return std::make_shared<int>(0); };
    client.cancelled = [&window] { return !window.isVisible(); };
    RefreshOutcome outcome;
    QTimer::singleShot(0, &window, [&] {
        outcome = work(client);
        if (window.isVisible())
            window.showOutcome(outcome);
        else
            QApplication::quit();
    });
    QApplication::exec();
    return outcome;
}

} // namespace tolvo
