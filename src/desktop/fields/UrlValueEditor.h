#pragma once

#include "desktop/fields/ValueEditor.h"

class QLineEdit;
class QToolButton;
class QUrl;

namespace tw::desktop::fields {

/**
 * The address to hand to the desktop for what a url field holds; empty for what is none, and for schemes that
 * could start something on the machine instead of showing a page.
 */
[[nodiscard]] QUrl openableUrl(const QString& text);

/** An address, with a button that opens it. */
class UrlValueEditor final : public ValueEditor
{
    Q_OBJECT

public:
    UrlValueEditor(const icons::IconSet& icons, QWidget* parent);

    void setReadOnly(bool readOnly) override;
    void commit() override;

protected:
    void present() override;

private:
    void refreshButton();

    QLineEdit* m_edit;
    QToolButton* m_open;
};

} // namespace tw::desktop::fields
