// SPDX-License-Identifier: MIT
// Measures programs on the X display from their start to the first picture of their window, and their peak
// memory:
//   first_paint RUNS COMMAND...          (each COMMAND is one argument, without blanks inside)
// For each command one line: median milliseconds and median peak memory in MiB.
#include <xcb/xcb.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <fstream>
#include <optional>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

/// A few lines of the screen: enough to see that a window has painted itself.
class Screen {
  public:
    Screen() : m_connection(xcb_connect(nullptr, nullptr)) {
        m_screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
    }
    ~Screen() { xcb_disconnect(m_connection); }
    Screen(const Screen &) = delete;
    Screen &operator=(const Screen &) = delete;

    std::vector<unsigned char> lines() const {
        std::vector<unsigned char> all;
        for (int part = 1; part <= 3; ++part) {
            const auto y = static_cast<std::int16_t>(m_screen->height_in_pixels * part / 4);
            auto *reply =
                xcb_get_image_reply(m_connection,
                                    xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, m_screen->root, 0,
                                                  y, m_screen->width_in_pixels, 1, ~0U),
                                    nullptr);
            if (!reply)
                continue;
            const auto *data = xcb_get_image_data(reply);
            all.insert(all.end(), data, data + xcb_get_image_data_length(reply));
            std::free(reply);
        }
        return all;
    }

  private:
    xcb_connection_t *m_connection;
    xcb_screen_t *m_screen;
};

/// More than a window's frame: a tenth of what is looked at.
bool painted(const std::vector<unsigned char> &before, const std::vector<unsigned char> &now) {
    std::size_t changed = 0;
    for (std::size_t i = 0; i < std::min(before.size(), now.size()); ++i)
        changed += before[i] != now[i];
    return changed > before.size() / 10;
}

long peakOf(pid_t process) {
    std::ifstream status("/proc/" + std::to_string(process) + "/status");
    for (std::string line; std::getline(status, line);) {
        if (line.rfind("VmHWM:", 0) == 0)
            return std::atol(line.c_str() + 6);
    }
    return 0;
}

pid_t parentOf(pid_t process) {
    std::ifstream stat("/proc/" + std::to_string(process) + "/stat");
    std::string all;
    std::getline(stat, all);
    const auto end = all.rfind(')');
    int parent = 0;
    char state = 0;
    if (end == std::string::npos || std::sscanf(all.c_str() + end + 1, " %c %d", &state, &parent) != 2)
        return 0;
    return parent;
}

/// The process and its children, the largest of them: a program may do its work in a child.
std::vector<pid_t> family(pid_t process) {
    std::vector<pid_t> members{process};
    if (DIR *proc = opendir("/proc")) {
        while (const dirent *entry = readdir(proc)) {
            const pid_t candidate = std::atoi(entry->d_name);
            if (candidate > 0 && parentOf(candidate) == process)
                members.push_back(candidate);
        }
        closedir(proc);
    }
    return members;
}

struct Figure {
    double milliseconds;
    double mebibytes;
};

std::optional<Figure> measure(const Screen &screen, const char *command) {
    const auto before = screen.lines();
    const auto start = Clock::now();
    const pid_t process = fork();
    if (process == 0) {
        execl(command, command, static_cast<char *>(nullptr));
        _exit(127);
    }
    std::optional<Figure> figure;
    while (Clock::now() - start < std::chrono::seconds(20)) {
        if (painted(before, screen.lines())) {
            figure = Figure{std::chrono::duration<double, std::milli>(Clock::now() - start).count(), 0};
            break;
        }
        usleep(500);
    }
    usleep(300'000);
    const auto members = family(process);
    long peak = 0;
    for (const pid_t member : members)
        peak = std::max(peak, peakOf(member));
    for (const pid_t member : members)
        kill(member, SIGKILL);
    waitpid(process, nullptr, 0);
    // The screen has to be as it was before the next run begins.
    for (int i = 0; i < 200 && painted(before, screen.lines()); ++i)
        usleep(20'000);
    if (figure)
        figure->mebibytes = static_cast<double>(peak) / 1024;
    return figure;
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values.empty() ? -1 : values[values.size() / 2];
}

} // namespace

int main(int argc, char **argv) {
    if (argc < 3) {
        std::fputs("usage: first_paint RUNS COMMAND...\n", stderr);
        return 2;
    }
    const Screen screen;
    const int commands = argc - 2;
    std::vector<std::vector<double>> times(commands);
    std::vector<std::vector<double>> memory(commands);
    // Side by side, so that a busy moment of the machine strikes all alike.
    for (int run = 0; run < std::atoi(argv[1]); ++run) {
        for (int i = 0; i < commands; ++i) {
            if (const auto figure = measure(screen, argv[i + 2])) {
                times[i].push_back(figure->milliseconds);
                memory[i].push_back(figure->mebibytes);
            }
        }
    }
    for (int i = 0; i < commands; ++i)
        std::printf("%s %.1f %.1f\n", argv[i + 2], median(times[i]), median(memory[i]));
    return 0;
}
