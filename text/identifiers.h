// SPDX-License-Identifier: MIT
// Names as programs write them, one a line.
#pragma once

#include <QString>
#include <QStringView>

namespace tolvo {

/// The words of each line as one name. Words end where letters and digits do, and where a capital begins the
/// next one: "XMLHttp request-2" has the words XML, Http, request, 2. A line without a word stays as it is;
/// blanks before the first word stay too.
///   of u"my file name": camelCase is "myFileName", pascalCase "MyFileName", snakeCase "my_file_name",
///   kebabCase "my-file-name", constantCase "MY_FILE_NAME"
[[nodiscard]] QString camelCase(QStringView text);
[[nodiscard]] QString pascalCase(QStringView text);
[[nodiscard]] QString snakeCase(QStringView text);
[[nodiscard]] QString kebabCase(QStringView text);
[[nodiscard]] QString constantCase(QStringView text);

} // namespace tolvo
