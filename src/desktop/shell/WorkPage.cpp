#include "desktop/shell/WorkPage.h"

namespace tw::desktop::shell {

WorkPage::WorkPage(const core::ContentId& objectId, QWidget* parent)
    : QWidget(parent)
    , m_objectId(objectId)
{}

void WorkPage::showPassage(const TextPassage&) {}

QString WorkPage::statusText() const
{
    return {};
}

} // namespace tw::desktop::shell
