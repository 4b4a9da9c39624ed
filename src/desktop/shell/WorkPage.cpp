#include "desktop/shell/WorkPage.h"

namespace tw::desktop::shell {

WorkPage::WorkPage(PageAddress address, QWidget* parent)
    : QWidget(parent)
    , m_address(std::move(address))
{}

std::vector<core::ContentId> WorkPage::shownObjects() const
{
    return {objectId()};
}

void WorkPage::showPassage(const TextPassage&) {}

QList<QWidget*> WorkPage::parts()
{
    return {this};
}

QString WorkPage::statusText() const
{
    return {};
}

} // namespace tw::desktop::shell
