#pragma once

#include <QIcon>
#include <QWidget>

class QHBoxLayout;
class QLabel;

namespace tw::desktop::codex {

/** A small icon that is only looked at; it follows the theme as the icon does. */
class IconMark final : public QWidget
{
    Q_OBJECT

public:
    IconMark(const QIcon& icon, QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QIcon m_icon;
};

/** The quiet line above a part of an entity's page: icon, title, and room for a button at the end. */
class SectionHeading final : public QWidget
{
    Q_OBJECT

public:
    SectionHeading(const QIcon& icon, const QString& title, QWidget* parent);

    void setTitle(const QString& title);
    [[nodiscard]] QString title() const;
    void addTrailing(QWidget* widget);

private:
    QHBoxLayout* m_layout;
    QLabel* m_title;
};

} // namespace tw::desktop::codex
