#pragma once

#include <QDialog>

namespace tw::desktop::shell {

/** What this program is, under which licence, and what it is built with. */
class AboutDialog final : public QDialog
{
    Q_OBJECT

public:
    explicit AboutDialog(QWidget* parent);
};

} // namespace tw::desktop::shell
