#pragma once

class QWidget;

namespace tw::desktop::shell {

class CrashKeeper;
class ProjectSession;

/**
 * Looks for edits of the open project that a program which crashed could not save, asks, and brings them back
 * as unsaved edits. What others changed meanwhile is merged, or backed up where the edits stand over it. A
 * question that is left open is asked again at the next opening. True when something came back.
 */
bool recoverAfterCrash(ProjectSession& session, CrashKeeper& keeper, QWidget* window);

} // namespace tw::desktop::shell
