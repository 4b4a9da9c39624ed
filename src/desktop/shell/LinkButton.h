#pragma once

#include <QAbstractButton>

namespace tw::desktop::shell {

/**
 * A large flat button: icon, title, and a line of explanation that breaks where it is too long. Unlike the
 * toolkit's own it follows the size of the interface's font.
 */
class LinkButton final : public QAbstractButton
{
    Q_OBJECT

public:
    LinkButton(const QString& title, const QString& description, QWidget* parent);

    void setDescription(const QString& description);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    [[nodiscard]] QFont titleFont() const;
    [[nodiscard]] int iconWidth() const;
    /** Where the text stands in a button of this width; its height is not known yet. */
    [[nodiscard]] QRect textColumn(int width) const;

    QString m_description;
};

} // namespace tw::desktop::shell
