#pragma once

#include "desktop/icons/Icon.h"
#include "desktop/manuscript/rich/RichPage.h"
#include "desktop/shell/DeskContext.h"

#include <QKeySequence>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <functional>
#include <vector>

class QAction;
class QMenu;
class QToolBar;
class QToolButton;

namespace tw::desktop::manuscript {

class TextPage;

/** An action that works on a page of styled text. */
struct TextAction
{
    QAction* action = nullptr;
    /** None: wherever text can be changed. */
    std::function<bool(const rich::RichPage& page)> isPossible = {};
    /** None for actions that are not switched on and off. */
    std::function<bool(const rich::RichPage& page)> isOn = {};
};

/**
 * The actions that style text and put things into it, for the menus and the bar above the page. They work on
 * the page that is current, show how the text at its cursor is set, and are enabled where they do something.
 */
class TextActions final : public QObject
{
    Q_OBJECT

public:
    /** Dialogs open above `window`. */
    TextActions(const shell::DeskContext& desk, QWidget* window);
    ~TextActions() override;

    /** Null when what is current is no text. */
    void setPage(TextPage* page);

    void fillFormatMenu(QMenu& menu);
    void fillInsertMenu(QMenu& menu);
    /** After the menus. */
    void fillBar(QToolBar& bar);

    /** Brings marks and enabled states up to date at once, without waiting for a rest. */
    void refreshNow();

signals:
    /** Whether there is styled text to work on. */
    void availableChanged(bool isAvailable);
    /** The settings of pages are others now. */
    void pageStyleChanged();

private:
    using Page = rich::RichPage;
    using BlockKind = core::document::markup::BlockKind;

    struct ActionText
    {
        const char* name;
        icons::Icon icon;
        QString text;
        QKeySequence keys = {};
    };

    QAction* add(
        QMenu& menu, const ActionText& text, std::function<void(Page&)> handler, TextAction entry = {});
    void addToggle(QMenu& menu, const ActionText& text, rich::TextToggle toggle, const QString& label);
    void addParagraphStyles(QMenu& menu);
    void addStyle(QMenu& menu, const ActionText& text, BlockKind kind, int level);
    void fillNamedStyles(QMenu& menu);
    [[nodiscard]] QStringList stylesInText() const;
    void editNamedStyles();
    void addAlignments(QMenu& menu);
    void addSpacings(QMenu& menu);
    void addColors(QMenu& menu);
    void addTableActions(QMenu& menu);

    void chooseFont(Page& page);
    void chooseColor(
        Page& page, QString core::document::markup::InlineAttributes::*field, const QString& label);
    void chooseImage(Page& page);
    void chooseLink(Page& page);
    void addNote(Page& page, bool isEndnote);

    [[nodiscard]] static QString styleTitle(const rich::BlockShape& shape);
    void followEditor();
    void refresh();

    shell::DeskContext m_desk;
    QWidget* m_window;
    QPointer<TextPage> m_textPage;
    QPointer<Page> m_page;
    std::vector<TextAction> m_entries;
    QTimer m_refresh;
    QMenu* m_paragraphStyles = nullptr;
    /** Shows the style of the present paragraph in the bar. */
    QToolButton* m_styleButton = nullptr;
};

} // namespace tw::desktop::manuscript
