// SPDX-License-Identifier: MIT
#include "platform/special_folders.h"

#include <QDir>
#include <QStandardPaths>

namespace tolvo {

QString GetSpecialFolder(int folder) {
    constexpr struct {
        int number;
        QStandardPaths::StandardLocation location;
    } folders[] = {
        {specialFolder::desktop, QStandardPaths::DesktopLocation},
        {specialFolder::documents, QStandardPaths::DocumentsLocation},
        {specialFolder::music, QStandardPaths::MusicLocation},
        {specialFolder::videos, QStandardPaths::MoviesLocation},
        {specialFolder::pictures, QStandardPaths::PicturesLocation},
        {specialFolder::home, QStandardPaths::HomeLocation},
    };
    for (const auto &row : folders) {
        if (row.number == folder)
            return QDir::toNativeSeparators(QStandardPaths::writableLocation(row.location));
    }
    return {};
}

QString GetDocumentsFolder() {
    return GetSpecialFolder(specialFolder::documents);
}

} // namespace tolvo
