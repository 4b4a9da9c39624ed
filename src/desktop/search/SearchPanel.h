#pragma once

#include "desktop/search/ProjectSearch.h"
#include "desktop/shell/DeskContext.h"

#include <QTimer>
#include <QWidget>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QStackedWidget;
class QToolButton;
class QTreeView;

namespace tw::desktop::search {

class SearchModel;

/** Looks through the whole project, shows what was found by document, and replaces what is checked. */
class SearchPanel final : public QWidget
{
    Q_OBJECT

public:
    SearchPanel(const shell::DeskContext& desk, QWidget* parent);
    ~SearchPanel() override;

    /** Puts the keyboard into the field; a text is looked for at once. */
    void lookFor(const QString& text);

    [[nodiscard]] SearchModel& model() { return *m_model; }

private:
    [[nodiscard]] QToolButton* addSwitch(const QString& text, const QString& name);
    void buildLayout();
    void connectParts();
    [[nodiscard]] app::search::TextQuery query() const;
    void search();
    void append(const Results& results);
    void end(const SearchEnd& end);
    void showReplaceRow(bool isShown);
    void followReplacement();
    void replaceChecked();
    void openResult(const QModelIndex& index);
    void refreshState();

    shell::DeskContext m_desk;
    ProjectSearch* m_search;
    SearchModel* m_model;
    QLineEdit* m_text;
    QToolButton* m_case;
    QToolButton* m_word;
    QToolButton* m_expression;
    QToolButton* m_replaceSwitch;
    QWidget* m_replaceRow;
    QLineEdit* m_replacement;
    QPushButton* m_replace;
    QCheckBox* m_titles;
    QLabel* m_state;
    QPushButton* m_cancel;
    QTreeView* m_tree;
    QLabel* m_hint;
    QStackedWidget* m_results;
    QTimer m_rest;
    std::optional<app::search::TextMatcher> m_matcher;
    QString m_failure;
    bool m_isLimitReached = false;
    /** The project changed since the search. */
    bool m_isOutdated = false;
};

} // namespace tw::desktop::search
