#pragma once

#include "desktop/manuscript/BodyEditor.h"

namespace tw::desktop::manuscript {

/** A body as the Markdown text it is, with the marks of the markup shown quietly. */
class MarkdownPage final : public BodyEditor
{
    Q_OBJECT

public:
    MarkdownPage(theme::ThemeManager& themes, QWidget* parent);

    void applyBody(const core::document::DocumentBody& body) override;
    [[nodiscard]] core::document::DocumentBody currentBody() override;
    [[nodiscard]] qint64 words() override;

protected:
    void takeUpStyle() override;
    bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    void applyText(const QString& text);
    [[nodiscard]] QString plainText() const;

    core::document::BodyFormat m_format = core::document::BodyFormat::Markdown;
    /** Lines of the body end as on another system; the document knows one line end alone. */
    bool m_hasCarriageReturns = false;
};

} // namespace tw::desktop::manuscript
