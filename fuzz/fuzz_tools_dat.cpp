// SPDX-License-Identifier: MIT
// Tools.dat of any content is read or refused; what is read holds every key once.
#include "base/failure.h"
#include "fuzz/fuzz.h"
#include "powerbuttons/catalogue.h"

#include <QBuffer>
#include <QSet>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    QBuffer file;
    file.setData(reinterpret_cast<const char *>(data), static_cast<int>(size));
    file.open(QIODevice::ReadOnly);
    try {
        const tolvo::Catalogue catalogue = tolvo::Catalogue::read(file);
        QSet<QString> keys;
        for (const tolvo::ToolPtr &tool : catalogue.tools())
            keys.insert(tool->isHeading() ? tool->Token() + tool->Name() : tool->Token());
        tolvo::fuzz::require(keys.size() == catalogue.tools().size() &&
                             catalogue.panelItems().size() < catalogue.tools().size());
    } catch (const tolvo::Failure &) {
        return 0;
    }
    return 0;
}
