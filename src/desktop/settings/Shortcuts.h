#pragma once

#include <QKeySequence>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>

#include <vector>

class QAction;
class QMenu;
class QMenuBar;
class QSettings;

namespace tw::desktop::settings {

/** An action of the menus and its keys. */
struct Shortcut
{
    /** Stable in all languages: the action's object name. */
    QString id;
    /** Of the menu it stands in, without the marks of access keys. */
    QString menu;
    QString title;
    /** What works everywhere in the window has none; keys of a panel work while it has the focus. */
    const QObject* panel = nullptr;
    QList<QKeySequence> standard = {};
    QList<QKeySequence> current = {};

    [[nodiscard]] bool isChanged() const { return current != standard; }
};

/** The text of an action as it reads, without the marks of access keys. */
[[nodiscard]] QString titleOf(const QAction& action);

/** Which other one would answer to the keys in the same place; none when they are free. */
[[nodiscard]] const Shortcut* findConflict(
    const std::vector<Shortcut>& shortcuts, const Shortcut& asking, const QKeySequence& keys);

/**
 * The keys of all actions in the menus. Changed ones are kept in the settings under "shortcuts/" and hold
 * again at the next start. The actions may go before this does.
 */
class Shortcuts final : public QObject
{
    Q_OBJECT

public:
    Shortcuts(QSettings& settings, QObject* parent);

    /**
     * Takes up every named action of the menus and of their submenus, and gives it the keys that the user
     * chose.
     */
    void collect(const QMenuBar& menus);

    [[nodiscard]] const std::vector<Shortcut>& all() const { return m_shortcuts; }
    /** The action at a position in all(); null when it is gone. */
    [[nodiscard]] QAction* action(std::size_t position) const;

    /** The positions are those in all(). Others that answer to the keys in the same place lose them. */
    void assign(std::size_t position, const QKeySequence& keys);
    void clear(std::size_t position);
    void reset(std::size_t position);
    void resetAll();

signals:
    void changed();

private:
    void collectFrom(const QMenu& menu, const QString& title);
    void takeFromOthers(std::size_t position, const QKeySequence& keys);
    void set(std::size_t position, const QList<QKeySequence>& keys);

    QSettings& m_settings;
    std::vector<Shortcut> m_shortcuts;
    /** In the order of the shortcuts. */
    std::vector<QPointer<QAction>> m_actions;
};

} // namespace tw::desktop::settings
