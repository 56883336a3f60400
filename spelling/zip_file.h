// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>

#include <minizip/unzip.h>

namespace tolvo {

/// Opens a file for minizip, which then reads it through the toolkit, whatever letters its name has. None if
/// it can't be opened or is not a zip file. The file must outlive the result, which unzClose closes.
[[nodiscard]] unzFile openZip(QFile &file);

} // namespace tolvo
