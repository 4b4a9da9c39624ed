#pragma once

#include "desktop/fields/ValueEditor.h"

class QComboBox;

namespace tw::desktop::fields {

/** One of the field's choices, or none. A value that is not among them stands in the list, marked. */
class ChoiceValueEditor final : public ValueEditor
{
    Q_OBJECT

public:
    ChoiceValueEditor(const QStringList& options, QWidget* parent);

    void setReadOnly(bool readOnly) override;

protected:
    void present() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QStringList m_options;
    QComboBox* m_box;
};

} // namespace tw::desktop::fields
