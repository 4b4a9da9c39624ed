#pragma once

#include "app/persistence/bundle/BackupList.h"
#include "desktop/project/NewPlace.h"
#include "desktop/shell/DeskContext.h"

#include <QDialog>

#include <optional>
#include <vector>

class QCheckBox;
class QLabel;
class QPushButton;
class QTableView;
class QVBoxLayout;

namespace tw::desktop::project {

class BackupModel;
class PlaceRows;

/** What there is to restore from. */
struct RestoreSubject
{
    std::vector<app::persistence::BackupFile> backups; ///< Of all projects.
    /** The name that backups of the open project bear; empty when none is open. */
    QString projectName;
    /** A file that was chosen already; may be empty. */
    QString chosenFile;
    NewPlace place;
};

/** A new project to be made of a backup. */
struct Restoration
{
    QString backupPath;
    NewPlace place;
};

/** The backups of the open project, or of all when it has none or none is open. */
[[nodiscard]] std::vector<app::persistence::BackupFile> backupsToShow(
    const RestoreSubject& subject, bool isEveryProject);

/** The name that a project restored from this file starts with. */
[[nodiscard]] QString nameOfBackup(const QString& path);

/**
 * Asks which backup to make a new project of, and where. Changes nothing by itself; the project that was
 * backed up is not touched in any case.
 */
class RestoreDialog final : public QDialog
{
    Q_OBJECT

public:
    RestoreDialog(const shell::DeskContext& desk, RestoreSubject subject, QWidget* parent);

    [[nodiscard]] Restoration restoration() const;

private:
    void addList(QVBoxLayout& layout);
    void addPlace(const shell::DeskContext& desk, QVBoxLayout& layout);
    void showBackups();
    void chooseFile();
    void choose(const QString& path);
    void refresh();

    RestoreSubject m_subject;
    BackupModel* m_model;
    QTableView* m_table;
    QLabel* m_empty;
    QCheckBox* m_everyProject;
    QLabel* m_chosen;
    PlaceRows* m_place = nullptr;
    QPushButton* m_restore = nullptr;
    QString m_backupPath;
    /** The name as it stood when it was given here last. */
    QString m_suggestedName;
    bool m_isPlacePossible = false;
};

} // namespace tw::desktop::project
