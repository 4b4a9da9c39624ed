#pragma once

#include "core/foundation/Id.h"

#include <QHash>
#include <QImage>
#include <QObject>
#include <QTextObjectInterface>

#include <functional>

namespace tw::desktop::manuscript::rich {

class RichFormats;

/** Draws references to footnotes: small raised labels that the cursor passes in one step. */
class FootnoteMarks final : public QObject, public QTextObjectInterface
{
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    FootnoteMarks(const RichFormats& formats, QObject* parent);

    QSizeF intrinsicSize(QTextDocument* document, int position, const QTextFormat& format) override;
    void drawObject(
        QPainter* painter, const QRectF& rect, QTextDocument* document, int position,
        const QTextFormat& format) override;

private:
    const RichFormats& m_formats;
};

/**
 * Draws the images of a text, scaled to the column. Pictures are read aside, only from the project's own
 * assets; what cannot be shown is named in a frame.
 */
class PageImages final : public QObject, public QTextObjectInterface
{
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    /** `projectFolder` and `columnWidth` are asked when a picture is needed. */
    PageImages(
        const RichFormats& formats, std::function<QString()> projectFolder,
        std::function<qreal()> columnWidth, QObject* parent);

    QSizeF intrinsicSize(QTextDocument* document, int position, const QTextFormat& format) override;
    void drawObject(
        QPainter* painter, const QRectF& rect, QTextDocument* document, int position,
        const QTextFormat& format) override;

    /** Forgets what was read: the column has another width, or the project is another one. */
    void forget();

signals:
    /** A picture is there now and can be drawn. */
    void loaded();

private:
    struct Picture
    {
        QString file;
        QSize size;
        QImage image;
        bool isAsked = false;
    };

    Picture& picture(const QTextFormat& format);
    void load(const QString& target, Picture& picture);

    const RichFormats& m_formats;
    std::function<QString()> m_projectFolder;
    std::function<qreal()> m_columnWidth;
    QHash<QString, Picture> m_pictures;
    /** Pictures that were asked for before the last forget() are not taken. */
    int m_round = 0;
};

/** The file behind an image's source: below the project's assets, or empty. */
[[nodiscard]] QString imageFile(const QString& projectFolder, const QString& target);

} // namespace tw::desktop::manuscript::rich
