// SPDX-License-Identifier: MIT
// Standard input and output of tolvo-pipe. Both pass piece by piece, so that a large text stands in memory
// once.
#pragma once

#include <QString>
#include <functional>

namespace tolvo {

/// Bytes pass as they are on every platform. Must come before anything is read or written.
void useBinaryStreams();

/// All of standard input as text. Throws BadRequest for what isn't UTF-8, and fails with a file access
/// failure if it can't be read.
[[nodiscard]] QString readStandardInput();

/// The text as UTF-8; lone surrogates become "?". Fails with a file access failure if it can't be written.
/// Each piece passes `convert` first; no piece ends between CR and LF or inside a surrogate pair.
void writeStandardOutput(const QString &text, const std::function<QString(const QString &)> &convert);
void writeStandardOutput(const QString &text);

} // namespace tolvo
