#include "desktop/settings/AssistantPage.h"

#include "desktop/assistant/ClientConfiguration.h"
#include "desktop/icons/IconSet.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/ProjectSession.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QFontDatabase>
#include <QFormLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace tw::desktop::settings {

using namespace Qt::Literals::StringLiterals;
using assistant::ClientForm;

namespace {

constexpr int snippetLines = 11;

QLabel* paragraph(const QString& text, QWidget* parent)
{
    auto* const label = new QLabel(text, parent);
    label->setWordWrap(true);
    return label;
}

} // namespace

AssistantPage::AssistantPage(const shell::DeskContext& desk, QWidget* parent)
    : QWidget(parent)
    , m_desk(desk)
    , m_form(new QComboBox(this))
    , m_readOnly(new QCheckBox(tr("The assistant may only &read"), this))
    , m_snippet(new QPlainTextEdit(this))
    , m_note(paragraph({}, this))
{
    m_form->addItem(
        tr("JSON with “mcpServers” – most assistants"), QVariant::fromValue(ClientForm::ServersByName));
    m_form->addItem(
        tr("JSON with “servers” – editors for code"), QVariant::fromValue(ClientForm::TypedServers));
    m_form->addItem(tr("TOML – assistants in a terminal"), QVariant::fromValue(ClientForm::Toml));
    m_form->addItem(tr("The command by itself"), QVariant::fromValue(ClientForm::CommandLine));
    m_snippet->setReadOnly(true);
    m_snippet->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_snippet->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_snippet->setTabChangesFocus(true);
    m_snippet->setAccessibleName(tr("Text for the settings of the assistant"));
    m_snippet->setMinimumHeight(m_snippet->fontMetrics().lineSpacing() * snippetLines);
    m_note->setForegroundRole(QPalette::PlaceholderText);
    auto* const copy = new QPushButton(desk.icons.icon(icons::Icon::Document), tr("&Copy"), this);
    copy->setAutoDefault(false);

    auto* const form = new QFormLayout;
    form->setContentsMargins(0, 0, 0, 0);
    form->addRow(tr("&Form"), m_form);
    form->addRow(QString(), m_readOnly);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(paragraph(
        tr("An assistant of your choice can read this project and work in it through the program "
           "vellory-mcp, as "
           "long as it speaks the Model Context Protocol. Put this text into its settings and start it anew. "
           "Every "
           "change is saved at once; what is excluded from AI stays hidden."),
        this));
    layout->addLayout(form);
    layout->addWidget(m_snippet, 1);
    layout->addWidget(m_note);
    layout->addWidget(copy, 0, Qt::AlignLeft);

    connect(m_form, &QComboBox::currentIndexChanged, this, &AssistantPage::showSnippet);
    connect(m_readOnly, &QCheckBox::toggled, this, &AssistantPage::showSnippet);
    connect(copy, &QPushButton::clicked, this, [this] {
        QGuiApplication::clipboard()->setText(snippet());
        m_desk.navigator.say(tr("Copied. Paste it into the settings of the assistant."));
    });
    showSnippet();
}

QString AssistantPage::snippet() const
{
    return m_snippet->toPlainText();
}

void AssistantPage::showSnippet()
{
    const auto& workspace = m_desk.session.workspace();
    const bool hasPlace = m_desk.session.isProjectOpen() && workspace.hasPath();
    const QString program = assistant::companionProgram(QCoreApplication::applicationDirPath());
    assistant::ServerCommand command{
        assistant::serverNameFor(hasPlace ? workspace.displayName() : QString()), program, {}};
    if (m_readOnly->isChecked())
        command.arguments.append(u"--read-only"_s);
    command.arguments.append(
        hasPlace ? QDir::toNativeSeparators(workspace.displayPath()) : tr("PATH OF YOUR PROJECT"));
    m_snippet->setPlainText(
        assistant::clientConfiguration(m_form->currentData().value<ClientForm>(), command));
    if (!hasPlace)
        m_note->setText(tr("Open a saved project, and its path stands here by itself."));
    else if (QDir::isRelativePath(program))
        m_note->setText(tr("vellory-mcp is not installed beside Vellory: it must be found by its name."));
    else
        m_note->setText(tr("Another project needs an entry of its own."));
}

} // namespace tw::desktop::settings
