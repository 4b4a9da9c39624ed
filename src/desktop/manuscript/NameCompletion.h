#pragma once

#include <QListWidget>

class QKeyEvent;

namespace tw::desktop::manuscript {

/** Names to choose from while one types; never takes the keyboard from the text. */
class NameCompletion final : public QListWidget
{
    Q_OBJECT

public:
    /** `description` says what is offered, to those who cannot see it. */
    NameCompletion(const QString& description, QWidget* parent);

    /** Shows the names below a line of text; hides when there are none. */
    void showNames(const QStringList& names, const QRect& globalLine);
    /** Takes the keys that choose, accept and close; false for all others. */
    bool takeKey(const QKeyEvent& event);

signals:
    void chosen(const QString& name);
};

} // namespace tw::desktop::manuscript
