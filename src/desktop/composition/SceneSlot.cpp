#include "desktop/composition/SceneSlot.h"

#include "core/document/Document.h"
#include "desktop/manuscript/BodyEditor.h"
#include "desktop/manuscript/rich/RichPage.h"
#include "desktop/screenplay/ScreenplayPage.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/ObjectTitles.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/theme/ThemeManager.h"

#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

namespace tw::desktop::composition {

using namespace Qt::Literals::StringLiterals;
using core::document::Document;
using manuscript::BodyEditor;
using manuscript::PageStyle;

namespace {

constexpr int spaceAbove = 32;
constexpr int spaceBelow = 16;
constexpr int charactersInAWord = 6;

} // namespace

SceneSlot::SceneSlot(const shell::DeskContext& desk, const core::ContentId& documentId, QWidget* parent)
    : QWidget(parent)
    , m_desk(desk)
    , m_documentId(documentId)
    , m_layout(new QVBoxLayout(this))
    , m_title(new QLabel(this))
{
    m_layout->setSpacing(spaceBelow);
    m_layout->addWidget(m_title);
    m_layout->addStretch();
    m_title->setTextFormat(Qt::RichText);
    m_title->setTextInteractionFlags(Qt::LinksAccessibleByMouse);
    m_title->setToolTip(tr("Open this document by itself"));
    connect(m_title, &QLabel::linkActivated, this, [this] { m_desk.navigator.open(m_documentId); });
    connect(&desk.themes, &theme::ThemeManager::themeChanged, this, &SceneSlot::refresh);
    refresh();
}

SceneSlot::~SceneSlot()
{
    // The editor loses the focus while it dies; nobody is left to hear of it.
    if (m_editor.widget)
        m_editor.widget->blockSignals(true);
}

PageStyle SceneSlot::style() const
{
    const PageStyle style = manuscript::pageStyleFrom(m_desk.settings);
    const bool isScreenplay =
        manuscript::styledViewOf(m_desk.session, m_documentId) == manuscript::TextView::Screenplay;
    return isScreenplay ? screenplay::screenplayStyle(style) : style;
}

BodyEditor& SceneSlot::wake()
{
    if (m_editor.widget)
        return *m_editor.widget;
    setMinimumHeight(0);
    m_editor = manuscript::makeDocumentEditor(
        m_desk, m_documentId, manuscript::styledViewOf(m_desk.session, m_documentId), this);
    if (m_editor.rich)
        // Notes are written where the document is by itself.
        connect(m_editor.rich, &manuscript::rich::RichPage::footnoteActivated, this, [this] {
            m_desk.navigator.open(m_documentId);
        });
    BodyEditor& widget = *m_editor.widget;
    m_layout->insertWidget(1, &widget);
    widget.resize(width(), widget.height());
    widget.setPartOfLongerText();
    widget.show();
    emit editorMade(&widget);
    return widget;
}

void SceneSlot::refresh()
{
    const auto* const document = m_desk.session.project().findAs<Document>(m_documentId);
    if (!document)
        return;
    const QString ink = m_desk.themes.theme().color(theme::Role::QuietInk).name();
    m_title->setText(u"<a href=\"#\" style=\"color:%1; text-decoration:none\">%2</a>"_s.arg(
        ink, shell::objectTitle(*document).toHtmlEscaped()));
    const auto view = m_editor.screenplay ? manuscript::TextView::Screenplay : manuscript::TextView::Rich;
    if (m_editor.widget && view != manuscript::styledViewOf(m_desk.session, m_documentId)) {
        m_editor.widget->blockSignals(true);
        m_editor.widget->deleteLater();
        m_editor = {};
        wake();
    }
    layOutTitle();
    update();
}

void SceneSlot::applyStyle()
{
    if (m_editor.widget)
        manuscript::applyEditorSettings(m_editor, m_desk.settings);
    layOutTitle();
}

int SceneSlot::likelyHeight() const
{
    const PageStyle present = style();
    const QFontMetricsF metrics(manuscript::pageFont(present));
    const qint64 words = m_desk.session.words().ofDocument(m_documentId);
    const qint64 lines = 1 + words * charactersInAWord / present.columnCharacters;
    return spaceAbove + m_title->sizeHint().height() +
           static_cast<int>(static_cast<qreal>(lines) * metrics.height() * present.lineHeight);
}

void SceneSlot::layOutTitle()
{
    const int side = manuscript::sheetMargins(style(), width()).text;
    m_layout->setContentsMargins(0, spaceAbove, 0, spaceBelow);
    m_title->setContentsMargins(side, 0, side, 0);
    if (!m_editor.widget)
        setMinimumHeight(likelyHeight());
}

void SceneSlot::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    layOutTitle();
}

void SceneSlot::paintEvent(QPaintEvent*)
{
    const theme::Theme& colors = m_desk.themes.theme();
    const int margin = manuscript::sheetMargins(style(), width()).sheet;
    QPainter painter(this);
    painter.fillRect(rect(), colors.color(theme::Role::Window));
    painter.fillRect(rect().adjusted(margin, 0, -margin, 0), colors.color(theme::Role::Page));
    painter.setPen(colors.color(theme::Role::Line));
    const int side = manuscript::sheetMargins(style(), width()).text;
    painter.drawLine(side, spaceAbove / 2, width() - side, spaceAbove / 2);
}

} // namespace tw::desktop::composition
