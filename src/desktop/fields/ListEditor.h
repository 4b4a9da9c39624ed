#pragma once

#include "desktop/shell/DeskContext.h"

#include <QWidget>

class QListWidget;
class QPushButton;
class QVBoxLayout;

namespace tw::desktop::fields {

/** A short list with buttons beside it: those that add, and those that move and remove the current row. */
class ListEditor final : public QWidget
{
    Q_OBJECT

public:
    /** The title names the list for screen readers; the placeholder is seen while it is empty. */
    ListEditor(
        const shell::DeskContext& desk, const QString& title, const QString& placeholder, QWidget* parent);

    [[nodiscard]] QListWidget& list() { return *m_list; }
    [[nodiscard]] const QListWidget& list() const { return *m_list; }
    /** A button above those that move and remove. */
    QPushButton* addButton(const QString& text);

signals:
    /** The row is still there; whoever hears this takes it away. */
    void removeRequested(int row);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void moveCurrent(int step);
    void refresh();

    QListWidget* m_list;
    QString m_placeholder;
    QVBoxLayout* m_buttons;
    QPushButton* m_up;
    QPushButton* m_down;
    QPushButton* m_remove;
};

} // namespace tw::desktop::fields
