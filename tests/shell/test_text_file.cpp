// SPDX-License-Identifier: MIT
// Files in the place of the text.
#include "tests/support/User.h"

#include <QFile>

using namespace Qt::StringLiterals;
using namespace tolvo;
using namespace tolvo::test;

namespace {

class DroppedFile : public testing::Test {
  protected:
    QString file(const QString &name, const QByteArray &bytes) {
        QFile result(folder.filePath(name));
        EXPECT_TRUE(result.open(QIODevice::WriteOnly) && result.write(bytes) == bytes.size());
        return result.fileName();
    }
    QTemporaryDir folder;
};

TEST_F(DroppedFile, takesThePlaceOfTheTextInOneStep) {
    User user("the te«xt» before");
    const QString path = file(u"notes.txt"_s, "one\ntwo\n");
    user.session.takeFiles({path});
    user.sees("«»one|two|", "Text taken from notes.txt");
    EXPECT_TRUE(user.session.bDirty()) << "it is not on the clipboard";
    user.session.undoStep();
    user.sees("the te«xt» before");
    user.session.cmdRedo_Click();
    user.sees("«»one|two|");
    user.session.cmdUndo_Click();
    user.sees("«»the text before");
    user.session.takeFiles({path, folder.path()});
    user.sees("«»one|two|", "Text taken from notes.txt, the first of the files");
}

TEST_F(DroppedFile, isRefusedInWordsOrCut) {
    User user("text«»");
    const std::pair<QString, QString> rows[] = {
        {file(u"a.png"_s, QByteArray("\x89PNG\0\0", 6)),
         u"'a.png' does not hold text. Nothing has been changed."_s},
        {folder.filePath(u"none.txt"_s), u"'none.txt' is not a file that Tolvo can read."_s},
        {u"/dev/zero"_s, u"'zero' is not a file that Tolvo can read."_s},
        {folder.path(), u"is a folder. Tolvo can take files only."_s},
    };
    for (const auto &[path, message] : rows) {
        user.session.takeFiles({path});
        user.isToldSomethingLike(message);
        user.sees("text«»");
    }
    user.session.undoStep();
    user.sees("text«»", "Reached end of Undo buffer");
    user.session.takeFiles({file(u"long.txt"_s, QByteArray(70'000, 'x'))});
    user.isToldSomethingLike(u"The text of the file exceeds the number of characters that Tolvo\r\ncan "
                             u"process (65,535). There are 70,000 "
                             "characters."_s);
    EXPECT_EQ(user.session.txtCurrent().length(), textLimit);
}

} // namespace
