// The clipboard: what is taken along, and what is taken in.
#include "desktop/manuscript/rich/RichPage.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QUrl>

namespace tw::desktop::manuscript::rich {

bool RichPage::canInsertFromMimeData(const QMimeData* source) const
{
    // Files belong to the window, which opens projects.
    const QList<QUrl> urls = source->urls();
    return source->hasText() && (urls.isEmpty() || !urls.constFirst().isLocalFile());
}

void RichPage::insertFromMimeData(const QMimeData* source)
{
    textCursor().insertText(source->text());
}

QMimeData* RichPage::createMimeDataFromSelection() const
{
    return BodyEditor::createMimeDataFromSelection();
}

void RichPage::pastePlainText()
{
    if (const QMimeData* const data = QApplication::clipboard()->mimeData(); data && data->hasText())
        textCursor().insertText(data->text());
}

} // namespace tw::desktop::manuscript::rich
