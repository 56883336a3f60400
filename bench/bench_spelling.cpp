// SPDX-License-Identifier: MIT
// How long a user waits between the click on "Spelling" and the dialog.
#include "bench/bench.h"

#include "platform/headless/ConsoleBoxes.h"
#include "platform/http_client.h"
#include "preferences/settings_store.h"
#include "spelling/Proofing.h"
#include "spelling/spelling_walk.h"
#include "spelling/ui/dlgSpelling.h"
#include "spelling/word_automation.h"
#include "text/cTextMethods.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTimer>

namespace {

using namespace tolvo;

struct NoNetwork : HttpClient {
    HttpReply get(const QByteArray &) override { return {}; }
    HttpReply post(const QByteArray &, const QByteArray &, const QByteArray &) override { return {}; }
};

struct World : ProofingHost {
    World() {
        qputenv("XDG_CONFIG_HOME", folder.path().toLocal8Bit());
        prepareSpelling(services);
    }
    void setStatus(const QString &) override {}
    void warn(const QString &, const QString &) override {}
    const cTextMethods &textMethods() const override { return text; }

    QTemporaryDir folder;
    SettingsStore store{QStringLiteral(":memory:")};
    RecordingBoxes boxes;
    NoNetwork http;
    NoWordAutomation word;
    cTextMethods text{*this, [](const QString &) { return false; }};
    SpellingServices services{store, boxes, http, word, folder.path(), folder.path(), {}};
};

/// Sixty-five thousand characters of English with a thousand misspellings, each one of its own.
QString misspelt() {
    const QString sentence =
        QStringLiteral("The committee members didn't %1 the half-finished agenda until late.\r");
    QString text;
    for (int i = 0; i < 1000; ++i) {
        QString word = QStringLiteral("recieved");
        for (int digit = i; digit > 0; digit /= 26)
            word += QChar(u'a' + digit % 26);
        text += sentence.arg(word);
    }
    return text.first(bench::fullText);
}

} // namespace

int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    World world;
    bench::Table table("Spelling");
    const QString text = misspelt();

    ErrorWalk walk(world.services, world);
    bool found = false;
    const double rules = bench::milliseconds([&] { found = walk.start(text, -1, false); });
    if (!found) {
        std::puts("  no British dictionary here");
        return 1;
    }
    table.add("check of 65,535 characters, 1,000 errors", rules, 300, "ms");
    constexpr int steps = 20;
    const auto step = [&] { walk.cmdIgnore(); };
    const double alone = bench::milliseconds(step, steps);
    BackgroundWorker worker;
    walk.lookAhead(worker);
    QElapsedTimer time;
    for (time.start(); !time.hasExpired(3000);) // the user reads
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
    const double ahead = bench::milliseconds(step, steps);
    walk.end();

    const double shown = bench::milliseconds([&] {
        dlgSpelling dialog(world.services);
        // The first turn of the dialog's event loop: it is shown and painted.
        QTimer::singleShot(0, &dialog, [&] {
            QCoreApplication::processEvents();
            dialog.close();
        });
        QString copy = text;
        dialog.CheckSpelling(world, copy, -1, false);
    });
    table.add("step that looks for suggestions itself", alone, 100, "ms");
    table.add("step to suggestions found ahead", ahead, 2, "ms");
    table.add("the same until the dialog shows", shown, 300, "ms");
    return table.exitCode();
}
