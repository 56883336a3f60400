// SPDX-License-Identifier: MIT
#include "tests/support/User.h"

namespace tolvo::test {

TextState stateOf(const QString &picture) {
    const auto [text, start, length] = readPicture(picture);
    return {text, start, length};
}

QString dataFolder() {
    return qEnvironmentVariable("TOLVO_SOURCE") + "/data";
}

const Catalogue &realCatalogue() {
    static const Catalogue catalogue = Catalogue::read(dataFolder() + "/Tools.dat");
    return catalogue;
}

User::User(const QString &picture)
    : headless(store, realCatalogue(), extensions, boxes, *this, m_folder.path()), session(headless.session),
      keys(session) {
    store.SaveSetting("Tolvo", "Spelling", "Provider", "1");
    if (!picture.isNull())
        startsWith(picture);
}

void User::startsWith(const QString &picture) {
    const TextState state = stateOf(picture);
    headless.clipboard.text = state.text;
    session.beginWithClipboard();
    restore(session.txtCurrent(), state);
    session.setDirty(false);
}

void User::runsAgain(const QString &token) {
    session.bRightButton = true;
    session.ToolDespatcher(token);
    session.bRightButton = false;
}

void User::pressesKey(int code, int shiftState) {
    if (!keys.formKeyDown(code, shiftState))
        keys.textKeyDown(code);
    keys.formKeyUp(shiftState);
}

void User::presses(char letter, int shiftState) {
    const int code = letter - 'A' + 1;
    keys.formKeyDown(letter, shiftState);
    if (!keys.formKeyPress(code))
        keys.textKeyPress(code);
}

void User::typesKeys(const QString &strokes) {
    for (const QChar key : strokes) {
        if (key == u'<' || key == u'>')
            inUse().erase(inUse().SelStart() - (key == u'<' ? 1 : 0), 1);
        else
            types(key == u'|' ? QString("\r\n") : QString(key));
    }
}

void User::sees(const QString &picture) {
    EXPECT_EQ(pictureOf(session.txtCurrent()), picture);
}

void User::sees(const QString &picture, const QString &status) {
    sees(picture);
    EXPECT_EQ(session.labStatus(), status);
}

void User::isTold(const QString &text) {
    EXPECT_EQ(boxes.takeOldest(), text);
}

void User::isToldSomethingLike(const QString &words) {
    const QString text = boxes.takeOldest();
    EXPECT_TRUE(text.contains(words)) << text.toStdString();
}

std::shared_ptr<CAction> User::action(const QString &token, SettingsFrom option, const QString &details) {
    return std::make_shared<CAction>(realCatalogue().tool(token), option, details);
}

void User::defines(int number, const QList<std::shared_ptr<CAction>> &actions) {
    const auto button = std::make_shared<CPowerButton>();
    button->Name = QString("Button %1").arg(number);
    for (const auto &step : actions)
        button->Add(step);
    headless.oPowerButtons.Add(button, number);
}

QString User::counter(const QString &section, const QString &key) {
    return store.GetSetting("Tolvo-Stats", section, key);
}

CloseAnswer User::confirmClose(const QString &prompt) {
    opened += prompt;
    return closeAnswer;
}

bool User::askToolSettings(ToolSettings &settings) {
    if (auto *indent = std::get_if<IndentSettings>(&settings)) {
        opened += "Indent";
        indent->choice = IndentSettings::Choice::Text;
        indent->text = "> ";
    }
    return !cancelsDialogs;
}

bool User::CheckSpelling(ProofingHost &, QString &text, int language, bool grammar) {
    opened += QString("%1 %2").arg(grammar ? u"grammar" : u"spelling").arg(language);
    if (!corrected.isNull())
        text = corrected;
    return true;
}

} // namespace tolvo::test
