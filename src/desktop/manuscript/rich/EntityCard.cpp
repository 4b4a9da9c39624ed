#include "desktop/manuscript/rich/EntityCard.h"

#include "core/entity/Schema.h"
#include "core/media/Media.h"
#include "desktop/codex/CategoryPaths.h"
#include "desktop/fields/ValueText.h"
#include "desktop/manuscript/rich/PageObjects.h"
#include "desktop/shell/ObjectTitles.h"
#include "desktop/shell/ProjectSession.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QImageReader>
#include <QKeyEvent>
#include <QLabel>
#include <QScreen>

#include <algorithm>

namespace tw::desktop::manuscript::rich {

using namespace Qt::Literals::StringLiterals;
using core::entity::Entity;

namespace {

constexpr int mostFacts = 5;
constexpr qsizetype longestFact = 160;
constexpr int margin = 12;
constexpr int gap = 8;
constexpr QSize pictureFrame(96, 120);

QString shortened(const QString& text)
{
    const QString line = text.simplified();
    return line.size() <= longestFact ? line : line.first(longestFact).trimmed() + u'…';
}

} // namespace

EntityCard::EntityCard(const shell::DeskContext& desk, QWidget* parent)
    : QFrame(parent, Qt::ToolTip)
    , m_desk(desk)
    , m_picture(new QLabel(this))
    , m_name(new QLabel(this))
    , m_place(new QLabel(this))
    , m_facts(new QLabel(this))
{
    setObjectName(u"entityCard"_s);
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
    auto* const layout = new QGridLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setHorizontalSpacing(margin);
    layout->setVerticalSpacing(gap / 2);
    layout->addWidget(m_picture, 0, 0, 3, 1, Qt::AlignTop);
    layout->addWidget(m_name, 0, 1);
    layout->addWidget(m_place, 1, 1);
    layout->addWidget(m_facts, 2, 1, Qt::AlignTop);
    QFont font = m_name->font();
    font.setBold(true);
    m_name->setFont(font);
    // Says the whole card to a screen reader.
    m_name->setTextInteractionFlags(Qt::TextSelectableByKeyboard);
    m_place->setForegroundRole(QPalette::PlaceholderText);
    m_facts->setWordWrap(true);
    for (QLabel* const label : {m_name, m_place, m_facts})
        label->setTextFormat(Qt::PlainText);
    m_facts->setMinimumWidth(fontMetrics().averageCharWidth() * 36);
}

QString EntityCard::facts(const core::ContentId& id) const
{
    const auto& project = m_desk.session.project();
    const auto& entity = *project.findAs<Entity>(id);
    QStringList lines;
    for (const auto& field : core::entity::schemaOfEntity(project, entity)) {
        const auto value = core::entity::shownValue(field, entity);
        if (!value || value->isEmpty())
            continue;
        lines.append(u"%1: %2"_s.arg(
            field.field.displayName(), shortened(fields::valueText(project, field.field, *value))));
        if (lines.size() == mostFacts)
            break;
    }
    if (!entity.aliases().isEmpty())
        lines.prepend(tr("Also: %1").arg(shortened(entity.aliases().join(u", "_s))));
    return lines.join(u'\n');
}

QPixmap EntityCard::picture(const core::ContentId& id) const
{
    const auto& project = m_desk.session.project();
    for (const core::ContentId& mediaId : project.findAs<Entity>(id)->gallery()) {
        const auto* const media = project.findAs<core::media::Media>(mediaId);
        if (!media || media->mediaKind() != "image"_L1)
            continue;
        QImageReader reader(imageFile(m_desk.session.workspace().folderPath(), media->assetPath()));
        reader.setAutoTransform(true);
        const QSize frame = pictureFrame * devicePixelRatioF();
        if (const QSize size = reader.size(); size.isValid())
            reader.setScaledSize(size.scaled(frame, Qt::KeepAspectRatio));
        QPixmap pixmap = QPixmap::fromImageReader(&reader);
        pixmap.setDevicePixelRatio(devicePixelRatioF());
        if (!pixmap.isNull())
            return pixmap;
    }
    return {};
}

void EntityCard::showEntity(const core::ContentId& id, const QRect& globalPlace, CardUse use)
{
    const auto& project = m_desk.session.project();
    const auto* const entity = project.findAs<Entity>(id);
    const bool isForKeyboard = use == CardUse::Keyboard;
    if (!entity || (isVisible() && id == m_shown && !isForKeyboard))
        return;
    m_shown = id;
    setWindowFlags(isForKeyboard ? Qt::Popup : Qt::ToolTip);
    m_name->setText(shell::objectTitle(*entity));
    m_place->setText(codex::categoryPath(project, entity->categoryId()));
    m_place->setVisible(!m_place->text().isEmpty());
    m_facts->setText(facts(id));
    m_facts->setVisible(!m_facts->text().isEmpty());
    m_name->setAccessibleName(
        QStringList{m_name->text(), m_place->text(), m_facts->text()}.join(u'\n').trimmed());
    const QPixmap shown = picture(id);
    m_picture->setPixmap(shown);
    m_picture->setVisible(!shown.isNull());
    adjustSize();
    const QRect area = screen()->availableGeometry();
    QPoint place = globalPlace.bottomLeft() + QPoint(0, gap);
    if (place.y() + height() > area.bottom())
        place.setY(globalPlace.top() - gap - height());
    place.setX(std::clamp(place.x(), area.left(), std::max(area.left(), area.right() - width())));
    move(place);
    show();
    if (isForKeyboard)
        m_name->setFocus(Qt::PopupFocusReason);
}

bool EntityCard::hasKeyboard() const
{
    return isVisible() && windowType() == Qt::Popup;
}

void EntityCard::keyPressEvent(QKeyEvent* event)
{
    const QString text = event->text();
    if (text.isEmpty() || !text.front().isPrint()) {
        QFrame::keyPressEvent(event);
        return;
    }
    close();
    QCoreApplication::sendEvent(parentWidget(), event);
}

void EntityCard::leaveEvent(QEvent*)
{
    if (!hasKeyboard())
        hide();
}

} // namespace tw::desktop::manuscript::rich
