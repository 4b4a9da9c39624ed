#pragma once

#include "desktop/fields/ValueEditor.h"

namespace tw::desktop::fields {

class GrowingTextEdit;

/** Text of any length. */
class TextValueEditor final : public ValueEditor
{
    Q_OBJECT

public:
    explicit TextValueEditor(QWidget* parent);

    void setReadOnly(bool readOnly) override;
    void commit() override;

protected:
    void present() override;

private:
    GrowingTextEdit* m_edit;
    QString m_shownText;
    bool m_presenting = false;
};

} // namespace tw::desktop::fields
