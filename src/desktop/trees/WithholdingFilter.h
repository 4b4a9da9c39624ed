#pragma once

#include <QSortFilterProxyModel>

#include <functional>

namespace tw::desktop::trees {

/**
 * A filter of documents or entities that leaves out what an audience may not see. A row above one that stays
 * is there with nothing of itself but that it is there, and cannot be edited.
 */
class WithholdingFilter : public QSortFilterProxyModel
{
public:
    explicit WithholdingFilter(QObject* parent = nullptr);

    /** Rows of the source to leave out, or null for none. Asked again for rows that change. */
    void setWithheld(std::function<bool(const QModelIndex& source)> isWithheld);
    [[nodiscard]] bool isWithholding() const { return m_isWithheld != nullptr; }

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

protected:
    [[nodiscard]] bool isSourceWithheld(const QModelIndex& source) const;

private:
    std::function<bool(const QModelIndex& source)> m_isWithheld;
};

} // namespace tw::desktop::trees
