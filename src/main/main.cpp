#include <QApplication>
#include <QWidget>

using namespace Qt::Literals::StringLiterals;

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(u"Vellory"_s);
    QApplication::setApplicationVersion(QStringLiteral(TW_VERSION));
    QWidget window;
    window.show();
    return QApplication::exec();
}
