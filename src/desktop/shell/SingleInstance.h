#pragma once

#include <QString>

namespace tw::desktop::shell {

/** The user name from the environment, as it stands there: USERNAME, or USER when that is empty. */
[[nodiscard]] QString userNameFromEnvironment();

/** The name under which the instances of a user find each other. */
[[nodiscard]] QString serverName(const QString& userName);

/**
 * Asks the running instance to open the project at an absolute path, or only to come to the front when the
 * path is empty. True when one took the request. Blocks for 1.3 seconds at most; no answer is awaited. A path
 * that the message cannot carry (with a line feed, say) and a server of another user get nothing.
 */
[[nodiscard]] bool sendToRunningInstance(const QString& serverName, const QString& path);

} // namespace tw::desktop::shell
