// SPDX-License-Identifier: MIT
#include "shell/ui/window_memory.h"

#include "shell/window_place.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace tolvo {

namespace {

std::optional<WindowPlace> storedPlace(const SettingsStore &store, const PlaceKey &key) {
    QList<QRect> screens;
    for (const QScreen *screen : QGuiApplication::screens())
        screens += screen->availableGeometry();
    return placeOnScreens(get(store, key, presentScreen()), screens);
}

} // namespace

QString presentScreen() {
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screenName(screen->size(), screen->devicePixelRatio());
}

QString placeOf(const QWidget &window) {
    if (window.windowHandle() == nullptr)
        return {};
    const bool maximised = window.isMaximized();
    const QRect area = maximised ? window.normalGeometry() : QRect(window.pos(), window.size());
    return area.isEmpty() ? QString() : written({area, maximised});
}

void bringBack(QWidget &window, const SettingsStore &store, const PlaceKey &key) {
    const auto place = storedPlace(store, key);
    if (!place)
        return;
    window.move(place->area.topLeft());
    window.resize(place->area.size());
    if (place->maximised)
        window.setWindowState(Qt::WindowMaximized);
}

bool bringBackCorner(QWidget &window, const SettingsStore &store, const PlaceKey &key) {
    const auto place = storedPlace(store, key);
    if (place)
        window.move(place->area.topLeft());
    return place.has_value();
}

void keepPlace(SettingsStore &store, const PlaceKey &key, const QString &place) {
    const QString screen = presentScreen();
    if (!place.isEmpty() && get(store, key, screen) != place)
        set(store, key, place, screen);
}

} // namespace tolvo
