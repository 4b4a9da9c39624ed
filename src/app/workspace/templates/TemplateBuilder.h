// Shared by the templates alone.
#pragma once

#include "core/document/Document.h"
#include "core/project/Project.h"
#include "core/taxonomy/Field.h"

#include <QCoreApplication>
#include <QString>

#include <map>
#include <utility>

namespace tw::app::workspace::templates {

/** The texts of templates in the language of the interface: `TemplateText::tr("Act One")`. */
struct TemplateText
{
    Q_DECLARE_TR_FUNCTIONS(TemplateText)
};

struct DocumentDraft
{
    core::document::DocumentKind kind = core::document::DocumentKind::Prose;
    QString title;
    QString synopsis;
    QString body;
    core::ContentId parent = {}; ///< Null at the top level.
    QString status = {};
};

/** Adds things to an empty project, each behind its siblings. The project must outlive it. */
class TemplateBuilder
{
public:
    explicit TemplateBuilder(core::project::Project& project)
        : m_project(project)
    {}

    core::ContentId addDocument(const DocumentDraft& draft);
    core::CategoryId addCategory(
        const QString& name, core::taxonomy::FieldList fields, const core::CategoryId& parent = {});

    [[nodiscard]] core::project::Project& project() { return m_project; }

private:
    core::project::Project& m_project;
    std::map<core::ContentId, qint32> m_documentsUnder;
    std::map<core::CategoryId, qint32> m_categoriesUnder;
};

/** A field of a plain type: text, number, yes or no, date, web address. */
[[nodiscard]] core::taxonomy::Field makeField(
    const QString& key, const QString& label,
    core::taxonomy::FieldType type = core::taxonomy::FieldType::Text);
[[nodiscard]] core::taxonomy::Field makeChoice(const QString& key, const QString& label, QStringList options);
[[nodiscard]] core::taxonomy::Field makeReference(
    const QString& key, const QString& label, const core::CategoryId& category);

void fillNovel(TemplateBuilder& builder);
void fillScreenplay(TemplateBuilder& builder);
void fillCampaign(TemplateBuilder& builder);

} // namespace tw::app::workspace::templates
