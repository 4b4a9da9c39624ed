// Where tests find the files that lie in the repository.
#pragma once

#include <QString>

namespace tw::test {

// Absolute path of a file or folder of the repository, given relative to its root ("examples/harbour").
[[nodiscard]] QString repositoryPath(QStringView relativePath);

} // namespace tw::test
