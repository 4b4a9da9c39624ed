// The part of links and images in parentheses: (target "title").
#pragma once

#include <QString>
#include <QStringView>

namespace tw::core::document::markup {

struct LinkTarget
{
    QString target;
    QString title;

    friend bool operator==(const LinkTarget&, const LinkTarget&) = default;
};

struct LinkTail
{
    LinkTarget target;
    /** The offset after the closing parenthesis; -1 when this is no target. */
    qsizetype end = -1;
};

/** Reads what begins with the parenthesis at `start`. A target without characters is none. */
[[nodiscard]] LinkTail readLinkTail(QStringView text, qsizetype start);

/** "(target "title")", escaped so that it reads as it is. */
[[nodiscard]] QString writeLinkTail(const LinkTarget& target);

struct Autolink
{
    LinkTarget target;
    QStringView text;
    /** The offset after the closing bracket; -1 when this is none. */
    qsizetype end = -1;
};

/** Reads "<scheme:...>" or "<name@host>" at `start`. */
[[nodiscard]] Autolink readAutolink(QStringView text, qsizetype start);

} // namespace tw::core::document::markup
