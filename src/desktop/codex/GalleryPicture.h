#pragma once

#include <QImage>
#include <QWidget>

namespace tw::desktop::codex {

/** A picture of a gallery: as large as it is, or as the frame when it is larger. */
class GalleryPicture final : public QWidget
{
    Q_OBJECT

public:
    GalleryPicture(const QString& file, const QString& caption, QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;

signals:
    void activated();
    void removalAsked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void load(const QString& file);

    QImage m_image;
    QSize m_shownSize;
};

} // namespace tw::desktop::codex
