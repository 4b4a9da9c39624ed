#pragma once

#include "desktop/manuscript/PlainBodyEditor.h"

namespace tw::desktop::manuscript {

/** A body as the Markdown text it is, with the marks of the markup shown quietly. */
class MarkdownPage final : public PlainBodyEditor
{
    Q_OBJECT

public:
    MarkdownPage(theme::ThemeManager& themes, QWidget* parent);

protected:
    void takeUpStyle() override;
};

} // namespace tw::desktop::manuscript
