#include "desktop/snapshots/DifferenceView.h"

#include "desktop/theme/ThemeManager.h"

#include <QScrollBar>
#include <QTextCursor>
#include <QUrl>

namespace tw::desktop::snapshots {

using namespace Qt::Literals::StringLiterals;
using app::text::DifferencePiece;
using app::text::PieceKind;
using theme::Role;

namespace {

/** Of what is the same, so much is shown beside a change. */
constexpr qsizetype shownContext = 120;
constexpr int margin = 8;

} // namespace

QString shortened(const QString& text)
{
    if (text.size() <= 2 * shownContext)
        return text;
    // At the border of a word, if there is one near.
    const qsizetype start = text.lastIndexOf(u' ', shownContext);
    const qsizetype end = text.indexOf(u' ', text.size() - shownContext);
    return text.first(start > 0 ? start : shownContext) + u" …\n\n… "_s +
           text.sliced(end > 0 ? end + 1 : text.size() - shownContext);
}

DifferenceView::DifferenceView(theme::ThemeManager& themes, QWidget* parent)
    : QTextBrowser(parent)
    , m_themes(themes)
{
    setOpenLinks(false);
    setFrameShape(QFrame::NoFrame);
    setAccessibleName(tr("Differences"));
    setPlaceholderText(
        tr("Take a snapshot to keep the text as it is now. What changes afterwards is shown here."));
    document()->setDocumentMargin(margin);
    connect(this, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) {
        const auto passage = static_cast<std::size_t>(link.path().toULongLong());
        if (passage < m_passages.size())
            emit restoreRequested(m_passages[passage]);
    });
    connect(&themes, &theme::ThemeManager::themeChanged, this, &DifferenceView::rebuild);
}

void DifferenceView::compare(const QString& before, const QString& after, Restoring restoring)
{
    m_passages = app::text::compareTexts(before, after);
    m_pieces = app::text::layOver(before, after, m_passages);
    m_restoring = restoring;
    m_isComparing = true;
    rebuild();
}

void DifferenceView::clearComparison()
{
    m_passages.clear();
    m_pieces.clear();
    m_isComparing = false;
    rebuild();
}

void DifferenceView::rebuild()
{
    clear();
    QTextCursor cursor(document());
    const theme::Theme& theme = m_themes.theme();
    QTextCharFormat same;
    same.setForeground(theme.color(Role::QuietInk));
    QTextCharFormat removed;
    removed.setForeground(theme.color(Role::Ink));
    removed.setBackground(theme.color(Role::Deletion));
    removed.setFontStrikeOut(true);
    QTextCharFormat added;
    added.setForeground(theme.color(Role::Ink));
    added.setBackground(theme.color(Role::Insertion));
    if (!m_isComparing)
        return;
    if (m_passages.empty()) {
        cursor.insertText(tr("The texts are the same."), same);
        return;
    }
    for (std::size_t index = 0; index < m_pieces.size(); ++index) {
        const DifferencePiece& piece = m_pieces[index];
        const bool isPassageStart =
            piece.passage >= 0 && (index == 0 || m_pieces[index - 1].passage != piece.passage);
        if (isPassageStart && m_restoring == Restoring::Offered) {
            QTextCharFormat link;
            link.setAnchor(true);
            link.setAnchorHref(QString::number(piece.passage));
            link.setForeground(theme.color(Role::Link));
            link.setFontUnderline(true);
            cursor.insertText(tr("Restore this passage"), link);
            cursor.insertText(u"\n"_s, same);
        }
        if (piece.kind == PieceKind::Same)
            cursor.insertText(piece.passage < 0 ? shortened(piece.text) : piece.text, same);
        else
            cursor.insertText(piece.text, piece.kind == PieceKind::Added ? added : removed);
    }
    verticalScrollBar()->setValue(0);
}

} // namespace tw::desktop::snapshots
