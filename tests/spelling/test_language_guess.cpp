// SPDX-License-Identifier: MIT
#include "spelling_world.h"

#include "spelling/language_guess.h"

namespace tolvo::test {

class LanguageGuess : public SpellingWorld {
  public:
    LanguageGuess() {
        add("en_GB", "the a and colour is of house dog that runs here");
        add("en_US", "the a and color is of house dog that runs here");
        add("de_DE", "der ein und Farbe ist von Haus Hund das hier a is");
        add("ru_RU", "это дом и собака тут");
    }
    void add(const char *name, const char *words) {
        QStringList list = u(words).split(u' ');
        list.prepend(QString::number(list.size()));
        dictionary(u(name), "SET UTF-8\n", list.join(u'\n').toUtf8());
    }
    QString guess(const char *text, const QStringList &locales) {
        QList<GuessedLanguage> languages;
        for (const QString &locale : locales)
            languages += {locale, *findDictionary(locale, services)};
        return guessLanguage(u(text), languages, [] { return false; });
    }
};

TEST_F(LanguageGuess, IsMadeOnlyIfItIsClear) {
    const QStringList all{u("en-gb"), u("en-us"), u("de-de"), u("ru-ru")};
    const std::pair<const char *, const char *> cases[] = {
        {"the colour of the house and the dog", "en-gb"},
        {"the color of the house and the dog", "en-us"},
        {"the house and the dog that runs here", "en-gb"}, // the first of equals
        {"der Hund ist hier und das ist ein Haus", "de-de"},
        {"это дом и это собака и дом тут", "ru-ru"},
        {"der Hund ist hier", ""},                              // few words
        {"der Hund ist hier and the house that runs here", ""}, // two languages
        {"le chien est dans la maison de mon ami", ""},         // of none
        {"1 2 3 4 5 6 7 8 9", ""},
        {"", ""},
    };
    for (const auto &[text, locale] : cases)
        EXPECT_EQ(guess(text, all), u(locale)) << text;
    EXPECT_EQ(guess("the house and the dog that runs here", {u("en-us"), u("en-gb")}), u("en-us"));
    EXPECT_EQ(guess("это дом и это собака и дом тут", {u("en-us"), u("de-de")}), QString());
}

TEST(Sample, IsTakenFromAllOfAText) {
    EXPECT_EQ(sampleOf(u("a short text")), u("a short text"));
    QString text;
    for (int i = 0; i < 20000; ++i)
        text += u("word") + QString::number(i) + u' ';
    const QString sample = sampleOf(text);
    EXPECT_LT(sample.size(), 2100);
    const QStringList words = sample.split(u' ', Qt::SkipEmptyParts);
    EXPECT_LT(words.first().mid(4).toInt(), 30);
    EXPECT_GT(words.last().mid(4).toInt(), 19900);
    for (const QString &word : words)
        EXPECT_TRUE(text.contains(u(" ") + word + u(" "))) << word.toStdString();
    EXPECT_LT(sampleOf(QString(100000, u'x')).trimmed().size(), 1); // no word ends
}

} // namespace tolvo::test
