#include "desktop/shell/AboutDialog.h"

#include "desktop/icons/IconSet.h"
#include "desktop/theme/InterfaceSize.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace tw::desktop::shell {

namespace {

constexpr int markSize = 64;
constexpr int charactersWide = 56;

QLabel* makeText(const QString& text, QWidget* parent)
{
    auto* const label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

} // namespace

AboutDialog::AboutDialog(QWidget* parent)
    : QDialog(parent)
{
    setWindowTitle(tr("About Vellory"));
    auto* const mark = new QLabel(this);
    mark->setPixmap(icons::applicationIcon().pixmap(markSize, markSize));
    auto* const title = makeText(tr("Vellory %1").arg(QApplication::applicationVersion()), this);
    theme::followInterfaceSize(*title, 1.5);
    auto* const texts = new QVBoxLayout;
    texts->setSpacing(12);
    texts->addWidget(title);
    texts->addWidget(makeText(
        tr("A writing and worldbuilding workspace for novelists, screenwriters and game masters."), this));
    texts->addWidget(
        makeText(tr("Free software under the GNU General Public License, version 3 or later."), this));
    texts->addWidget(makeText(
        tr("Built with Qt %1, Qt Advanced Docking System, simdjson and Hunspell.")
            .arg(QString::fromLatin1(qVersion())),
        this));
    auto* const top = new QHBoxLayout;
    top->setSpacing(16);
    top->addWidget(mark, 0, Qt::AlignTop);
    top->addLayout(texts, 1);
    auto* const buttons = new QDialogButtonBox(this);
    buttons->addButton(tr("Close"), QDialogButtonBox::RejectRole)->setDefault(true);
    connect(buttons, &QDialogButtonBox::rejected, this, &AboutDialog::reject);
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addStretch();
    layout->addWidget(buttons);
    setMinimumWidth(fontMetrics().averageCharWidth() * charactersWide);
}

} // namespace tw::desktop::shell
