#pragma once

#include "desktop/overview/DocumentFilter.h"
#include "desktop/shell/DeskContext.h"
#include "desktop/shell/WorkPage.h"

#include <QPointer>

#include <functional>

class QAbstractItemView;
class QLabel;
class QVBoxLayout;

namespace tw::core::project {
class Project;
}
namespace tw::desktop::manuscript {
class DocumentActions;
class ManuscriptModel;
} // namespace tw::desktop::manuscript
namespace tw::desktop::shell {
class PanelHeader;
}

namespace tw::desktop::overview {

/** The views of an overview, as page addresses name them. */
inline constexpr QLatin1StringView corkboardView("corkboard");
inline constexpr QLatin1StringView outlineView("outline");

/** What an overview asked for at this object is of: the document when others lie below it, else what it lies
 * in. */
[[nodiscard]] core::ContentId overviewRoot(
    const core::project::Project& project, const core::ContentId& currentId);

/** What every overview works on. Both outlive all pages. */
struct OverviewContext
{
    shell::DeskContext desk;
    manuscript::ManuscriptModel& model;
    manuscript::DocumentActions& actions;
};

/**
 * A page over the documents below one (null: the whole manuscript): the way there on top, a filter, and a
 * list that a subclass brings. Documents are selected, renamed, moved and removed as in the navigator.
 */
class OverviewPage : public shell::WorkPage
{
    Q_OBJECT

public:
    OverviewPage(const OverviewContext& context, shell::PageAddress address, QWidget* parent);
    ~OverviewPage() override;

    [[nodiscard]] QString title() const override;
    void takeFocus() override;
    [[nodiscard]] QString statusText() const override;
    [[nodiscard]] std::vector<core::ContentId> shownObjects() const override;

protected:
    /** Takes the list in; called once, by the subclass. `rename` lets the user name a document in it. */
    void setList(QAbstractItemView& list, const std::function<void(const core::ContentId&)>& rename);
    [[nodiscard]] DocumentFilter& filter() { return *m_filter; }
    [[nodiscard]] const OverviewContext& context() const { return m_context; }
    /** Opens what stands in a row; subclasses decide how. */
    virtual void activate(const core::ContentId& id);
    /** After the rows were made anew. */
    virtual void restoreView() {}

private:
    void fillPath();
    void showHint();
    void selectCurrent(const core::ContentId& id);
    void takeRoot();
    void followAudience();

    OverviewContext m_context;
    /** A closing window may take the actions away before its pages. */
    QPointer<manuscript::DocumentActions> m_attachedTo;
    DocumentFilter* m_filter;
    QLabel* m_path;
    QLabel* m_hint;
    shell::PanelHeader* m_header;
    QVBoxLayout* m_layout;
    QAbstractItemView* m_list = nullptr;
    bool m_isSelecting = false;
};

} // namespace tw::desktop::overview
