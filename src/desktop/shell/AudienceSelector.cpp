#include "desktop/shell/AudienceSelector.h"

#include "desktop/shell/Navigator.h"
#include "desktop/shell/ProjectSession.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>

namespace tw::desktop::shell {

AudienceSelector::AudienceSelector(const DeskContext& desk, QWidget* parent)
    : QWidget(parent)
    , m_desk(desk)
    , m_choice(new QComboBox(this))
{
    constexpr int gap = 8;
    auto* const label = new QLabel(tr("View as:"), this);
    label->setForegroundRole(QPalette::PlaceholderText);
    label->setBuddy(m_choice);
    const QString explanation = tr("Preview the codex and manuscript as a chosen audience sees them");
    m_choice->setObjectName(QStringLiteral("viewAs"));
    m_choice->setAccessibleName(tr("View as:"));
    m_choice->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_choice->setToolTip(explanation);
    m_choice->setAccessibleDescription(explanation);
    setFocusProxy(m_choice);
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(gap, 0, gap, 0);
    layout->addWidget(label);
    layout->addWidget(m_choice);
    connect(m_choice, &QComboBox::currentIndexChanged, this, [this] {
        m_desk.navigator.setAudience(m_choice->currentData().toString());
    });
    connect(
        &desk.session, &ProjectSession::changed, this, [this](const core::project::ProjectChanges& changes) {
            if (changes.isEverything || changes.areSettingsChanged)
                refresh();
        });
    refresh();
}

void AudienceSelector::open()
{
    if (isHidden()) {
        m_desk.navigator.say(
            tr("This project has no audiences. Project Settings in the menu Project adds them."));
        return;
    }
    m_choice->setFocus();
    m_choice->showPopup();
}

void AudienceSelector::refresh()
{
    const QStringList audiences = m_desk.session.project().audiences();
    {
        const QSignalBlocker blocker(m_choice);
        m_choice->clear();
        m_choice->addItem(tr("Everything"));
        for (const QString& audience : audiences)
            m_choice->addItem(audience, audience);
        m_choice->setCurrentIndex(std::max(0, m_choice->findData(m_desk.navigator.audience())));
    }
    // One that is gone is looked through no longer.
    m_desk.navigator.setAudience(m_choice->currentData().toString());
    setVisible(!audiences.isEmpty());
}

std::function<bool(const QModelIndex& source)> withheldFrom(
    const ProjectSession& session, const QString& audience,
    std::function<core::ContentId(const QModelIndex& source)> idAt)
{
    if (audience.isEmpty())
        return {};
    return [&session, audience, idAt = std::move(idAt)](const QModelIndex& source) {
        const auto* const object = session.project().find(idAt(source));
        return object && !object->isVisibleTo(audience);
    };
}

QString nothingForAudience()
{
    return AudienceSelector::tr("Nothing here is for the audience that you view it as.");
}

} // namespace tw::desktop::shell
