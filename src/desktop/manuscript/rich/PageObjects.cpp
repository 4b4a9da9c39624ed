#include "desktop/manuscript/rich/PageObjects.h"

#include "desktop/codex/GallerySection.h"
#include "desktop/manuscript/rich/RichFormats.h"

#include <QFileInfo>
#include <QFontMetricsF>
#include <QFutureWatcher>
#include <QImageReader>
#include <QPainter>
#include <QPromise>
#include <QTextBlock>
#include <QTextDocument>
#include <QThreadPool>
#include <QUrl>

#include <algorithm>
#include <memory>

namespace tw::desktop::manuscript::rich {

using theme::Role;

namespace {

constexpr qreal markScale = 0.7;
constexpr qreal placeholderHeight = 3.2; // ems
constexpr qreal largestHeight = 40;      // ems

QFont markFont(const QTextFormat& format, const QTextDocument& document)
{
    QFont font = document.defaultFont();
    const QFont own = format.toCharFormat().font();
    if (format.hasProperty(QTextFormat::FontPointSize))
        font.setPointSizeF(own.pointSizeF());
    font.setPointSizeF(font.pointSizeF() * markScale);
    return font;
}

} // namespace

FootnoteMarks::FootnoteMarks(const RichFormats& formats, QObject* parent)
    : QObject(parent)
    , m_formats(formats)
{}

QSizeF FootnoteMarks::intrinsicSize(QTextDocument* document, int, const QTextFormat& format)
{
    const QFontMetricsF metrics(markFont(format, *document));
    const QFontMetricsF textMetrics(document->defaultFont());
    return {metrics.horizontalAdvance(objectText(format.toCharFormat())) + 2, textMetrics.ascent()};
}

void FootnoteMarks::drawObject(
    QPainter* painter, const QRectF& rect, QTextDocument* document, int, const QTextFormat& format)
{
    painter->save();
    painter->setFont(markFont(format, *document));
    painter->setPen(m_formats.theme().color(Role::Link));
    painter->drawText(rect, Qt::AlignHCenter | Qt::AlignTop, objectText(format.toCharFormat()));
    painter->restore();
}

QString imageFile(const QString& projectFolder, const QString& target)
{
    const QString file = codex::assetFile(projectFolder, QUrl::fromPercentEncoding(target.toUtf8()));
    const QString assets = QFileInfo(projectFolder + QStringLiteral("/assets")).canonicalFilePath();
    return !assets.isEmpty() && file.startsWith(assets + u'/') ? file : QString();
}

PageImages::PageImages(
    const RichFormats& formats, std::function<QString()> projectFolder, std::function<qreal()> columnWidth,
    QObject* parent)
    : QObject(parent)
    , m_formats(formats)
    , m_projectFolder(std::move(projectFolder))
    , m_columnWidth(std::move(columnWidth))
{}

void PageImages::forget()
{
    ++m_round;
    m_pictures.clear();
}

PageImages::Picture& PageImages::picture(const QTextFormat& format)
{
    const QString target = objectTarget(format.toCharFormat());
    const auto found = m_pictures.find(target);
    if (found != m_pictures.end())
        return *found;
    Picture picture;
    picture.file = imageFile(m_projectFolder(), target);
    if (!picture.file.isEmpty()) {
        QImageReader reader(picture.file);
        reader.setAutoTransform(true);
        QSize size = reader.size();
        if (reader.transformation().testFlag(QImageIOHandler::TransformationRotate90))
            size.transpose();
        const QSize limit(
            static_cast<int>(m_columnWidth()), static_cast<int>(largestHeight * m_formats.em()));
        if (size.width() > limit.width() || size.height() > limit.height())
            size.scale(limit, Qt::KeepAspectRatio);
        picture.size = size;
    }
    return *m_pictures.insert(target, picture);
}

void PageImages::load(const QString& target, Picture& picture)
{
    picture.isAsked = true;
    auto promise = std::make_shared<QPromise<QImage>>();
    promise->start();
    auto* const watcher = new QFutureWatcher<QImage>(this);
    connect(watcher, &QFutureWatcherBase::finished, this, [this, watcher, target, round = m_round] {
        const auto found = m_pictures.find(target);
        if (round == m_round && found != m_pictures.end()) {
            found->image = watcher->result();
            if (found->image.isNull())
                found->file.clear();
            emit loaded();
        }
        watcher->deleteLater();
    });
    watcher->setFuture(promise->future());
    // Sharp on screens of twice the resolution.
    constexpr int pixelRatio = 2;
    QThreadPool::globalInstance()->start([promise, file = picture.file, size = picture.size * pixelRatio] {
        QImageReader reader(file);
        reader.setAutoTransform(true);
        QImage image = reader.read();
        if (!image.isNull() && image.width() > size.width())
            image = image.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        promise->addResult(image);
        promise->finish();
    });
}

QSizeF PageImages::intrinsicSize(QTextDocument* document, int position, const QTextFormat& format)
{
    const Picture& picture = this->picture(format);
    const QTextBlockFormat block = document->findBlock(position).blockFormat();
    const qreal width = std::max(m_columnWidth() - block.leftMargin() - block.rightMargin(), m_formats.em());
    if (picture.file.isEmpty() || picture.size.isEmpty())
        return {width, placeholderHeight * m_formats.em()};
    const QSizeF size = picture.size;
    return size.width() > width ? size.scaled(width, size.height(), Qt::KeepAspectRatio) : size;
}

void PageImages::drawObject(
    QPainter* painter, const QRectF& rect, QTextDocument* document, int, const QTextFormat& format)
{
    Picture& picture = this->picture(format);
    if (!picture.image.isNull()) {
        painter->setRenderHint(QPainter::SmoothPixmapTransform);
        painter->drawImage(rect, picture.image);
        return;
    }
    const theme::Theme& theme = m_formats.theme();
    if (!picture.file.isEmpty() && !picture.size.isEmpty()) {
        if (!picture.isAsked)
            load(objectTarget(format.toCharFormat()), picture);
        painter->fillRect(rect, theme.color(Role::Hover));
        return;
    }
    const QString description = objectText(format.toCharFormat());
    const QString target = objectTarget(format.toCharFormat());
    painter->save();
    painter->setPen(theme.color(Role::Border));
    painter->drawRect(rect.adjusted(0.5, 0.5, -0.5, -0.5));
    painter->setPen(theme.color(Role::QuietInk));
    QFont font = document->defaultFont();
    font.setPointSizeF(font.pointSizeF() * markScale * 1.2);
    painter->setFont(font);
    const QString text = description.isEmpty()
                             ? tr("Image not in the project’s assets: %1").arg(target)
                             : tr("%1 – image not in the project’s assets: %2").arg(description, target);
    painter->drawText(
        rect, Qt::AlignCenter,
        painter->fontMetrics().elidedText(
            text, Qt::ElideMiddle, static_cast<int>(rect.width() - m_formats.em())));
    painter->restore();
}

} // namespace tw::desktop::manuscript::rich
