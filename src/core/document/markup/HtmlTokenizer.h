// Takes HTML apart into tags and text, tolerating anything.
#pragma once

#include <QString>
#include <QStringView>

#include <vector>

namespace tw::core::document::markup {

struct HtmlAttribute
{
    /** In lower case. */
    QString name;
    QString value;
};

struct HtmlToken
{
    enum class Kind
    {
        Text,
        Opening,
        Closing,
        End,
    };

    Kind kind = Kind::End;
    /** Text with its references resolved; the name of a tag in lower case. */
    QString text;
    std::vector<HtmlAttribute> attributes;

    /** Empty when the tag has none of that name. */
    [[nodiscard]] QString attribute(QLatin1StringView name) const;
};

/** Gives tokens in order. Comments, scripts, style sheets and everything else that is no text are skipped. */
class HtmlTokenizer
{
public:
    explicit HtmlTokenizer(QStringView html)
        : m_html(html)
    {}

    [[nodiscard]] HtmlToken next();

private:
    [[nodiscard]] HtmlToken readText();
    /** Reads what begins with "<" and a letter or "</" and a letter. A tag without its end swallows the rest.
     */
    [[nodiscard]] HtmlToken readTag();
    void readAttributes(HtmlToken& tag);
    /** Skips what is neither text nor a tag; false when there was nothing. */
    bool skipOther();
    void skipPast(QStringView mark, qsizetype from);
    void skipContent(const QString& name);
    [[nodiscard]] bool startsTag(qsizetype index) const;

    QStringView m_html;
    qsizetype m_position = 0;
};

} // namespace tw::core::document::markup
