// SPDX-License-Identifier: MIT
#include "platform/unix/open_descriptors.h"

#include <cstdlib>
#include <dirent.h>
#include <unistd.h>

namespace tolvo {

std::vector<int> openDescriptors() {
    std::vector<int> found;
    DIR *folder = opendir("/proc/self/fd");
    if (!folder)
        return found;
    while (const dirent *entry = readdir(folder)) {
        const int descriptor = std::atoi(entry->d_name);
        if (descriptor > STDERR_FILENO && descriptor != dirfd(folder))
            found.push_back(descriptor);
    }
    closedir(folder);
    return found;
}

} // namespace tolvo
