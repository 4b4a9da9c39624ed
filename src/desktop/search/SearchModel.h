#pragma once

#include "desktop/icons/IconSet.h"
#include "desktop/search/ProjectSearch.h"
#include "desktop/trees/TreeRoles.h"

#include <QAbstractItemModel>

#include <optional>

namespace tw::desktop::search {

/** What was found: documents, and beneath each its matches, which can be checked for a replacement. */
class SearchModel final : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Role
    {
        BeforeRole = trees::FirstOwnRole,
        FoundRole,
        AfterRole,
        /** What would take the match's place; invalid while nothing is replaced. */
        ReplacementRole,
        /** "Title" or "Synopsis"; empty for the text. */
        FieldRole,
    };

    SearchModel(const icons::IconSet& icons, QObject* parent);

    void clear();
    void append(const Results& results);

    /** Shows what every match would become, with boxes to choose; none to show only what was found. */
    void setReplacement(const std::optional<app::search::TextMatcher>& matcher, const QString& replacement);

    [[nodiscard]] qsizetype matchCount() const { return m_matchCount; }
    [[nodiscard]] qsizetype documentCount() const { return std::ssize(m_groups); }
    [[nodiscard]] qsizetype checkedCount() const;
    /** The checked matches, and all that were found in the same documents. */
    struct Checked
    {
        app::search::DocumentMatches all;
        std::vector<app::search::TextMatch> chosen;
    };
    [[nodiscard]] std::vector<Checked> checked() const;

    [[nodiscard]] core::ContentId documentAt(const QModelIndex& index) const;
    /** Null for the row of a document. */
    [[nodiscard]] const app::search::TextMatch* matchAt(const QModelIndex& index) const;

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex& index) const override;
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

signals:
    void checkedChanged();

private:
    struct Group
    {
        app::search::DocumentMatches matches;
        std::vector<bool> isChecked;
    };

    [[nodiscard]] const Group& groupOf(const QModelIndex& index) const;
    [[nodiscard]] Qt::CheckState checkState(const QModelIndex& index) const;
    [[nodiscard]] QVariant groupData(const Group& group, int role) const;
    [[nodiscard]] QVariant matchData(const app::search::TextMatch& match, int role) const;

    const icons::IconSet& m_icons;
    std::vector<Group> m_groups;
    qsizetype m_matchCount = 0;
    std::optional<app::search::TextMatcher> m_matcher;
    QString m_replacement;
};

} // namespace tw::desktop::search
