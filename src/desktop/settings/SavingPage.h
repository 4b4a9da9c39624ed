#pragma once

#include "desktop/shell/DeskContext.h"

#include <QWidget>

class QCheckBox;
class QFormLayout;
class QSpinBox;

namespace tw::desktop::settings {

/** Saving: by itself or not, in which form, what opens at the start, where backups lie. */
class SavingPage final : public QWidget
{
    Q_OBJECT

public:
    SavingPage(const shell::DeskContext& desk, QWidget* parent);

private:
    void addAutosave(QFormLayout& form);
    void addForm(QFormLayout& form);
    void addStart(QFormLayout& form);
    void addBackups(QFormLayout& form);
    void storeAutosaveChoice();

    shell::DeskContext m_desk;
    QCheckBox* m_autosave;
    QSpinBox* m_interval;
};

} // namespace tw::desktop::settings
