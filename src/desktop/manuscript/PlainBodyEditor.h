#pragma once

#include "desktop/manuscript/BodyEditor.h"

namespace tw::desktop::manuscript {

/** A body as the plain text it is, character by character. Subclasses say how it looks. */
class PlainBodyEditor : public BodyEditor
{
    Q_OBJECT

public:
    PlainBodyEditor(theme::ThemeManager& themes, QWidget* parent);

    void applyBody(const core::document::DocumentBody& body) override;
    [[nodiscard]] core::document::DocumentBody currentBody() override;
    [[nodiscard]] qint64 words() override;
    [[nodiscard]] qint64 selectedWords() const override;

protected:
    bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;

    [[nodiscard]] QString plainText() const;

private:
    void applyText(const QString& text);
    void keepLineEnds(const QString& body);

    core::document::BodyFormat m_format = core::document::BodyFormat::Markdown;
    /** Of lines that have none of their own; the document knows one line end alone. */
    QString m_lineEnd{u'\n'};
    /** Lines end in several ways: each keeps its own. */
    bool m_hasMixedLineEnds = false;
};

} // namespace tw::desktop::manuscript
