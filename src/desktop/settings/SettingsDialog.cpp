#include "desktop/settings/SettingsDialog.h"

#include "desktop/icons/IconSet.h"
#include "desktop/settings/AppearancePage.h"
#include "desktop/settings/AssistantPage.h"
#include "desktop/settings/EditorPage.h"
#include "desktop/settings/KeysPage.h"
#include "desktop/settings/ProofreadingPage.h"
#include "desktop/settings/SavingPage.h"
#include "desktop/theme/ThemeManager.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace tw::desktop::settings {

using namespace Qt::Literals::StringLiterals;
using icons::Icon;

namespace {

constexpr int charactersWide = 96;
constexpr int linesHigh = 30;
constexpr int listPadding = 24;

} // namespace

SettingsDialog::SettingsDialog(
    const shell::DeskContext& desk, Shortcuts& shortcuts, proofreading::ProofreadingService& proofreading,
    QWidget* parent)
    : QDialog(parent)
    , m_list(new QListWidget(this))
    , m_pages(new QStackedWidget(this))
{
    setWindowTitle(tr("Settings"));
    setSizeGripEnabled(true);
    m_list->setObjectName(u"settingsPages"_s);
    m_list->setAccessibleName(tr("Pages of the settings"));
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* const editor = new EditorPage(desk, this);
    connect(editor, &EditorPage::editorSettingsChanged, this, &SettingsDialog::editorSettingsChanged);
    addPage(tr("Appearance"), desk.icons.icon(Icon::Theme), new AppearancePage(desk, this));
    addPage(tr("Editor"), desk.icons.icon(Icon::Text), editor);
    addPage(tr("Proofreading"), desk.icons.icon(Icon::Check), new ProofreadingPage(desk, proofreading, this));
    addPage(tr("Saving"), desk.icons.icon(Icon::Save), new SavingPage(desk, this));
    addPage(tr("Keys"), desk.icons.icon(Icon::Menu), new KeysPage(desk, shortcuts, this));
    addPage(tr("Connect an assistant"), desk.icons.icon(Icon::Link), new AssistantPage(desk, this));
    connect(m_list, &QListWidget::currentRowChanged, m_pages, &QStackedWidget::setCurrentIndex);
    connect(&desk.themes, &theme::ThemeManager::themeChanged, this, &SettingsDialog::fitPageList);

    auto* const buttons = new QDialogButtonBox(this);
    buttons->addButton(tr("Close"), QDialogButtonBox::RejectRole)->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::rejected, this, &SettingsDialog::reject);
    auto* const middle = new QHBoxLayout;
    middle->addWidget(m_list);
    middle->addSpacing(8);
    middle->addWidget(m_pages, 1);
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(middle, 1);
    layout->addWidget(buttons);
    fitPageList();
    showPage(SettingsPage::Appearance);
    resize(fontMetrics().averageCharWidth() * charactersWide, fontMetrics().height() * linesHigh);
}

void SettingsDialog::addPage(const QString& title, const QIcon& icon, QWidget* page)
{
    new QListWidgetItem(icon, title, m_list);
    // Large texts may need more room than a small screen has.
    auto* const scroll = new QScrollArea(m_pages);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidget(page);
    m_pages->addWidget(scroll);
}

void SettingsDialog::fitPageList()
{
    m_list->setFixedWidth(m_list->sizeHintForColumn(0) + listPadding);
}

void SettingsDialog::showPage(SettingsPage page)
{
    m_list->setCurrentRow(static_cast<int>(page));
}

} // namespace tw::desktop::settings
