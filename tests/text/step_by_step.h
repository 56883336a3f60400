// SPDX-License-Identifier: MIT
// The tools with the trickiest rules once more, step by step and without a thought for their cost, to compare
// the engine with. Everything is searched for anew at each character; positions count from 1.
#pragma once

#include <QString>

namespace tolvo::test::stepByStep {

QString SentenceCase(const QString &text);
QString Capitalise(const QString &text, bool colon);
QString InitialCaps(QString text, qsizetype start, qsizetype length);
QString TitleCase(const QString &text, qsizetype s, qsizetype n);
QString SingleSpace(QString text);
QString removeExtraLines(const QString &text, bool single, bool multiple);
QString CurlyQuotes(const QString &text);
QString HTMLdecode(QString text);
QString checkPunctuation(const QString &text);

} // namespace tolvo::test::stepByStep
