#include "desktop/inspector/ObjectSection.h"

#include "core/content/ContentCommands.h"
#include "core/plot/PlotCommands.h"
#include "desktop/icons/IconSet.h"
#include "desktop/shell/ObjectTitles.h"
#include "desktop/shell/PendingEdit.h"
#include "desktop/theme/ThemeManager.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

namespace tw::desktop::inspector {

using namespace Qt::Literals::StringLiterals;
using core::content::NameSet;

namespace {

constexpr int groupSpacing = 4;

NameSet readTags(const QString& text)
{
    NameSet tags;
    for (const QString& tag : text.split(u',')) {
        if (const QString trimmed = tag.trimmed(); !trimmed.isEmpty())
            tags.insert(trimmed);
    }
    return tags;
}

QString writeTags(const NameSet& tags)
{
    return QStringList(tags.begin(), tags.end()).join(u", "_s);
}

} // namespace

ObjectSection::ObjectSection(const shell::DeskContext& desk, QWidget* parent)
    : QWidget(parent)
    , m_desk(desk)
    , m_tags(new QLineEdit(this))
    , m_heldTags(new shell::PendingEdit(
          desk.session, this, [this] { commitTags(); }, shell::CommitReason::InPassing))
    , m_locked(new QCheckBox(tr("&Locked"), this))
    , m_aiExcluded(new QCheckBox(tr("E&xclude from AI"), this))
    , m_pinned(new QCheckBox(tr("Pinne&d"), this))
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(12);
    auto* const tagsLabel = new QLabel(tr("T&ags"), this);
    tagsLabel->setBuddy(m_tags);
    auto* const tagsLayout = new QVBoxLayout;
    tagsLayout->setSpacing(groupSpacing);
    tagsLayout->addWidget(tagsLabel);
    tagsLayout->addWidget(m_tags);
    layout->addLayout(tagsLayout);
    m_threadGroup = makeGroup(tr("Plot threads"), m_threads, this);
    m_audienceGroup = makeGroup(tr("Visible to"), m_audiences, this);
    m_audienceGroup->setToolTip(tr("With none ticked, every audience sees it."));
    layout->addWidget(m_threadGroup);
    layout->addWidget(m_audienceGroup);
    auto* const switches = new QVBoxLayout;
    switches->setSpacing(groupSpacing);
    for (QCheckBox* const box : {m_pinned, m_locked, m_aiExcluded})
        switches->addWidget(box);
    layout->addLayout(switches);
    m_tags->setPlaceholderText(tr("Separated by commas"));

    m_heldTags->follow(*m_tags);
    connect(m_tags, &QLineEdit::editingFinished, this, &ObjectSection::commitTags);
    connect(m_locked, &QCheckBox::clicked, this, [this](bool on) {
        apply<core::content::SetObjectLockCommand>(on);
    });
    connect(m_aiExcluded, &QCheckBox::clicked, this, [this](bool on) {
        apply<core::content::SetAiExclusionCommand>(on);
    });
    connect(m_pinned, &QCheckBox::clicked, this, [this](bool on) {
        auto& project = m_desk.session.projectForCommands();
        m_desk.session.apply(std::make_unique<core::content::SetPinnedCommand>(project, m_id, on));
    });
}

QWidget* ObjectSection::makeGroup(const QString& title, QWidget*& box, QWidget* parent)
{
    auto* const group = new QWidget(parent);
    auto* const layout = new QVBoxLayout(group);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(groupSpacing);
    layout->addWidget(new QLabel(title, group));
    box = new QWidget(group);
    auto* const boxLayout = new QVBoxLayout(box);
    boxLayout->setContentsMargins(0, 0, 0, 0);
    boxLayout->setSpacing(groupSpacing);
    layout->addWidget(box);
    return group;
}

template <class Command, class Value>
void ObjectSection::apply(Value value)
{
    if (auto* const shown = m_desk.session.projectForCommands().findForEdit(m_id))
        m_desk.session.apply(std::make_unique<Command>(*shown, std::move(value)));
}

template <class Command, class Value>
void ObjectSection::applyUnlessLocked(Value value)
{
    if (object() && !object()->isLocked())
        apply<Command>(std::move(value));
}

const core::content::ContentObject* ObjectSection::object() const
{
    return m_desk.session.project().find(m_id);
}

void ObjectSection::showObject(const core::ContentId& id)
{
    if (id != m_id)
        m_heldTags->commit();
    m_id = id;
    const auto* const shown = object();
    if (!shown)
        return;
    if (readTags(m_tags->text()) != shown->tags() || !m_tags->hasFocus())
        m_tags->setText(writeTags(shown->tags()));
    for (QWidget* const edit : {static_cast<QWidget*>(m_tags), m_threadGroup, m_audienceGroup})
        edit->setEnabled(!shown->isLocked());
    m_locked->setChecked(shown->isLocked());
    m_aiExcluded->setChecked(shown->isAiExcluded());
    m_pinned->setChecked(m_desk.session.project().isPinned(id));
    fillThreads();
    fillAudiences();
}

void ObjectSection::fillThreads()
{
    std::vector<Choice> choices;
    for (const core::plot::PlotThread& thread : m_desk.session.project().plotThreads()) {
        const QColor color = QColor::isValidColor(thread.color)
                                 ? QColor(thread.color)
                                 : m_desk.themes.theme().threadColor(static_cast<int>(choices.size()));
        choices.push_back(
            {thread.id, shell::shownName(thread.name), m_desk.icons.icon(icons::Icon::PlotThread, color)});
    }
    fillChoices(*m_threads, choices, object()->plotThreadIds(), &ObjectSection::toggleThread);
    m_threadGroup->setVisible(!choices.empty());
}

void ObjectSection::fillAudiences()
{
    std::vector<Choice> choices;
    for (const QString& audience : m_desk.session.project().audiences())
        choices.push_back({audience, audience, {}});
    const NameSet& visibleTo = object()->visibleTo();
    fillChoices(
        *m_audiences, choices, QStringList(visibleTo.begin(), visibleTo.end()),
        &ObjectSection::toggleAudience);
    m_audienceGroup->setVisible(!choices.empty());
}

void ObjectSection::fillChoices(
    QWidget& box, const std::vector<Choice>& choices, const QStringList& chosen,
    void (ObjectSection::*handler)(const QString&, bool))
{
    // The boxes stay as long as the choices do, so that the keyboard does not lose its place.
    QList<QCheckBox*> boxes = box.findChildren<QCheckBox*>(QString(), Qt::FindDirectChildrenOnly);
    const bool isSame = std::ranges::equal(
        boxes, choices, {}, [](const QCheckBox* check) { return check->objectName(); }, &Choice::key);
    if (!isSame) {
        qDeleteAll(boxes);
        boxes.clear();
        for (const Choice& choice : choices) {
            auto* const check = new QCheckBox(QString(choice.label).replace(u'&', u"&&"_s), &box);
            check->setObjectName(choice.key);
            check->setIcon(choice.icon);
            box.layout()->addWidget(check);
            connect(check, &QCheckBox::clicked, this, [this, handler, key = choice.key](bool on) {
                (this->*handler)(key, on);
            });
            boxes.append(check);
        }
    }
    for (QCheckBox* const check : boxes)
        check->setChecked(chosen.contains(check->objectName()));
}

void ObjectSection::toggleThread(const QString& threadId, bool on)
{
    if (!object())
        return;
    QStringList ids = object()->plotThreadIds();
    ids.removeAll(threadId);
    if (on)
        ids.append(threadId);
    applyUnlessLocked<core::plot::SetObjectPlotThreadsCommand>(ids);
}

void ObjectSection::toggleAudience(const QString& audience, bool on)
{
    if (!object())
        return;
    NameSet audiences = object()->visibleTo();
    if (on)
        audiences.insert(audience);
    else
        audiences.erase(audience);
    applyUnlessLocked<core::content::SetObjectVisibilityCommand>(audiences);
}

void ObjectSection::commitTags()
{
    const NameSet tags = readTags(m_tags->text());
    if (object() && tags != object()->tags())
        applyUnlessLocked<core::content::SetObjectTagsCommand>(tags);
}

} // namespace tw::desktop::inspector
