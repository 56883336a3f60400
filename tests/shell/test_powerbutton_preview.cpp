// SPDX-License-Identifier: MIT
#include "shell/powerbutton_effect.h"
#include "shell/powerbutton_preview.h"
#include "tests/support/User.h"

#include <random>

using namespace tolvo;
using namespace tolvo::test;
using enum SettingsFrom;

namespace {

using Kind = StepResult::Kind;

QList<StepResult> previewOf(User &user, int number, int count = 1000) {
    const auto button = user.session.services().oPowerButtons.Item(number);
    PowerButtonTrial trial = powerButtonTrial(user.session, *button, count);
    if (trial.pastes)
        trial.clipboard = user.headless.clipboard.text;
    return tryPowerButton(trial);
}

QString pictureOf(const TextState &state) {
    MemoryTextBox box;
    restore(box, state);
    return tolvo::test::pictureOf(box);
}

/// A step of any tool that runs without a window.
std::shared_ptr<CAction> anyStep(std::mt19937 &random) {
    static const QList<std::pair<const char *, QString>> withSettings = {
        {"foWRP", "Width=12, Justify=0, Hanging=0, Tab=True"},
        {"foREM", "Single=1, Multiple=1"},
        {"foIND", "Spaces=4, Text=# , RadioButton=2"},
        {"liBUL", "Bullet=-, Tab=False, Spaces=2"},
        {"liNUM", "Start=1, Style=0, FollowChar=1, Tab=False, Spaces=3, Renumber=0"},
        {"edREP", "Mode=1, Find=e, MatchCase=0, Direction=S, WholeWords=0, SpecialChars=0, Replace=EE, "
                  "SmartReplace=0, ReplaceAll=1"},
        {"edSRC", "Mode=1, Find=o, MatchCase=0, Direction=D, WholeWords=0, SpecialChars=0"},
        {"foIND", "RadioButton=x"},
        {"pbPBT", "PowerButton=2"},
        {"pbPBT", "PowerButton="}};
    static const QList<QString> plain = {"ccUPP", "ccTIT", "ccREV", "foTRM", "foSSP",   "soALP", "soNUM",
                                         "liREM", "pbALL", "pbTAG", "pbCLR", "pbDEL",   "pbCUT", "pbPST",
                                         "foPAR", "edPLA", "soREV", "edSTR", "toolNULL"};
    std::shared_ptr<CAction> step;
    if (random() % 3 == 0) {
        const auto &[token, details] =
            withSettings.at(static_cast<qsizetype>(random() % withSettings.size()));
        step = User::action(
            token, random() % 4 == 0 && QLatin1StringView(token) != "pbPBT" ? Current : Custom, details);
    } else {
        step = User::action(plain.at(static_cast<qsizetype>(random() % plain.size())));
    }
    step->setSwitchedOff(random() % 6 == 0);
    return step;
}

TEST(PowerButtonPreview, isWhatTheRunMakesOfTheText) {
    std::mt19937 random(11);
    int changed = 0;
    for (int round = 0; round < 300; ++round) {
        const char *const texts[] = {"the «»lord|  of the   rings ||3 one", "«»", "a \\[b c\\] d|«e|f»",
                                     "> quoted|> «text 2», “so”|• item"};
        User user(texts[random() % 4]);
        user.headless.clipboard.text = "pasted";
        user.searchRequest.find = "r";
        user.searchRequest.replace = "s";
        QList<std::shared_ptr<CAction>> steps;
        for (unsigned count = random() % 5 + 1; count > 0; --count)
            steps += anyStep(random);
        user.defines(1, steps);
        user.defines(2, {User::action("ccLOW"), User::action("pbALL")});
        const TextState before = textState(user.session.txtCurrent());
        const QList<StepResult> results = previewOf(user, 1);
        ASSERT_EQ(results.size(), steps.size());
        EXPECT_EQ(pictureOf(results.first().before), pictureOf(before));
        EXPECT_EQ(pictureOf(textState(user.session.txtCurrent())), pictureOf(before))
            << "the text was touched";
        EXPECT_EQ(user.headless.clipboard.text, "pasted");
        EXPECT_TRUE(user.boxes.take().empty());
        user.session.imgPower_Click(0);
        user.sees(pictureOf(results.last().after));
        static_cast<void>(user.boxes.take());
        changed += results.last().after.text == before.text ? 0 : 1;
    }
    EXPECT_GT(changed, 100) << "or nothing has been compared";
}

TEST(PowerButtonPreview, saysWhatEachStepDoes) {
    User user("one|«»two");
    auto off = User::action("ccUPP");
    off->setSwitchedOff(true);
    user.defines(1, {User::action("ccUPP"), off, User::action("foIND"),
                     User::action("chSPE", Custom, "LangID=2057"), User::action("edSRC"),
                     User::action("foIND", Custom, "RadioButton=x"), User::action("ccLOW")});
    const QList<StepResult> results = previewOf(user, 1);
    const QList<Kind> kinds = {Kind::Ran,  Kind::SwitchedOff, Kind::Asks, Kind::Asks,
                               Kind::Asks, Kind::Ran,         Kind::Ran};
    ASSERT_EQ(results.size(), kinds.size());
    for (int i = 0; i < kinds.size(); ++i)
        EXPECT_EQ(results.at(i).kind, kinds.at(i)) << i;
    EXPECT_EQ(results.at(0).says, "8 characters: upper case");
    EXPECT_EQ(pictureOf(results.at(2).after), "«»ONE|TWO");
    EXPECT_TRUE(results.at(5).says.contains("(error 13)")) << results.at(5).says.toStdString();
    EXPECT_EQ(pictureOf(results.at(6).after), "«»one|two");
    EXPECT_EQ(previewOf(user, 1, 1).size(), 1);
    EXPECT_EQ(user.opened, QStringList());
}

TEST(PowerButtonPreview, ofACircleEndsAsItsRunDoes) {
    User user("one");
    user.defines(
        1, {User::action("ccUPP"), User::action("pbPBT", Custom, "PowerButton=2"), User::action("ccTIT")});
    user.defines(2, {User::action("pbPBT", Custom, "PowerButton=1")});
    const QList<StepResult> results = previewOf(user, 1);
    EXPECT_TRUE(results.at(1).says.contains("runs itself")) << results.at(1).says.toStdString();
    EXPECT_EQ(results.at(2).kind, Kind::NotReached);
    EXPECT_EQ(pictureOf(results.at(2).after), "«»one");
}

TEST(PowerButtonPreview, saysWhereTextIsLost) {
    User user;
    user.session.txtCurrent().setText(QString(textLimit - 2, 'a'));
    user.defines(1, {User::action("ccUPP"), User::action("foIND", Custom, "Spaces=9, RadioButton=1"),
                     User::action("ccLOW")});
    const QList<StepResult> results = previewOf(user, 1);
    EXPECT_FALSE(results.at(0).says.contains("truncated"));
    EXPECT_EQ(results.at(1).after.text.size(), textLimit);
    EXPECT_TRUE(results.at(1).says.contains("truncated")) << results.at(1).says.toStdString();
    EXPECT_EQ(results.at(2).after.text.left(10), QString(9, ' ') + "a");
}

TEST(PowerButtonPreview, becomesWordsAndPlaces) {
    User user("one two|«»");
    auto off = User::action("ccUPP");
    off->setSwitchedOff(true);
    const QString replaceTwo = "Mode=1, Find=two, MatchCase=0, Direction=S, WholeWords=0, SpecialChars=0, "
                               "Replace=twos, SmartReplace=0, ReplaceAll=1";
    user.defines(1, {off, User::action("edREP", Custom, replaceTwo), User::action("ccLOW"),
                     User::action("foIND"), User::action("ccUPP"), User::action("pbALL"),
                     User::action("pbPBT", Custom, "PowerButton=1"), User::action("ccUPP")});
    const auto effect = [&](int count) { return effectOf(previewOf(user, 1, count)); };
    EXPECT_EQ(effect(1).says, "Switched off: nothing happens");
    const StepEffect replaced = effect(2);
    EXPECT_EQ(replaced.says, "1 place changed");
    EXPECT_EQ(replaced.after, "one twos\r\n");
    EXPECT_EQ(replaced.taken, QList<TextSpan>({{7, 0}}));
    EXPECT_EQ(replaced.put, QList<TextSpan>({{7, 1}}));
    EXPECT_EQ(effect(4).says, "Asks when run");
    EXPECT_EQ(effect(5).says, "10 characters: upper case (without the steps that ask when run)");
    EXPECT_EQ(effect(6).says, "Nothing changed (without the steps that ask when run)");
    EXPECT_EQ(effect(6).selection, TextSpan({0, 10}));
    EXPECT_EQ(effect(8).says, "Not reached: a step before it ends the run");
}

TEST(PowerButtonPreview, endsSoonOnceItIsCancelled) {
    User user(QString("lorem ipsum ").repeated(5000));
    user.defines(1, QList<std::shared_ptr<CAction>>(100, User::action("ccTIT")));
    const PowerButtonTrial trial =
        powerButtonTrial(user.session, *user.session.services().oPowerButtons.Item(1), 100);
    int asked = 0;
    const QList<StepResult> results = tryPowerButton(trial, [&] { return ++asked > 3; });
    EXPECT_EQ(asked, 4) << "steps went on";
    EXPECT_EQ(results.size(), 100);
}

} // namespace
