#include "desktop/fields/TextValueEditor.h"

#include "desktop/fields/EditorKeys.h"
#include "desktop/fields/GrowingTextEdit.h"

#include <QScopedValueRollback>
#include <QVBoxLayout>

namespace tw::desktop::fields {

TextValueEditor::TextValueEditor(QWidget* parent)
    : ValueEditor(parent)
    , m_edit(new GrowingTextEdit(this))
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_edit);
    setFocusProxy(m_edit);
    new EditorKeys(*m_edit, [this] { return takeBack(m_edit->text(), m_shownText); });
    connect(m_edit, &GrowingTextEdit::left, this, &TextValueEditor::commit);
    connect(m_edit, &QTextEdit::textChanged, this, [this] {
        if (!m_presenting && m_edit->text() != m_shownText)
            emit typed();
    });
}

void TextValueEditor::setReadOnly(bool readOnly)
{
    m_edit->setReadOnly(readOnly);
}

void TextValueEditor::commit()
{
    const QString text = m_edit->text();
    const QString shown = std::exchange(m_shownText, text);
    finishText(text, shown);
}

void TextValueEditor::present()
{
    const QScopedValueRollback guard(m_presenting, true);
    m_edit->setText(value().value_or(QString()));
    m_shownText = m_edit->text();
}

} // namespace tw::desktop::fields
