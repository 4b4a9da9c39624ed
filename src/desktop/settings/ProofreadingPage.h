#pragma once

#include "desktop/shell/DeskContext.h"

#include <QWidget>

class QComboBox;
class QFormLayout;
class QListWidget;
class QPushButton;

namespace tw::desktop::proofreading {
class ProofreadingService;
}

namespace tw::desktop::settings {

/** Spelling, its languages and the user's words, and the rules of style. */
class ProofreadingPage final : public QWidget
{
    Q_OBJECT

public:
    /** The service must outlive the page. */
    ProofreadingPage(
        const shell::DeskContext& desk, proofreading::ProofreadingService& service, QWidget* parent);

private:
    void addSpelling(QFormLayout& form);
    void addRules(QFormLayout& form);
    void addWords(QFormLayout& form);
    void fillWords();
    void removeSelectedWords();

    shell::DeskContext m_desk;
    proofreading::ProofreadingService& m_service;
    QListWidget* m_words;
    QPushButton* m_remove;
};

} // namespace tw::desktop::settings
