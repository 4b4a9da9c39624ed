#include "desktop/proofreading/LanguageMenu.h"

#include "desktop/proofreading/ProofreadingService.h"

#include <QCoreApplication>
#include <QLocale>
#include <QMenu>

namespace tw::desktop::proofreading {

using namespace Qt::Literals::StringLiterals;

QString languageTitle(const QString& code)
{
    const QLocale locale(code);
    if (locale.language() == QLocale::C)
        return code;
    const QString language = locale.nativeLanguageName();
    return code.contains(u'_') ? u"%1 (%2)"_s.arg(language, locale.nativeTerritoryName()) : language;
}

void fillLanguageMenu(QMenu& menu, ProofreadingService& service, const core::ContentId& document)
{
    menu.clear();
    if (service.languages().isEmpty()) {
        menu.addAction(QCoreApplication::translate("LanguageMenu", "No dictionary is installed"))
            ->setEnabled(false);
        return;
    }
    if (document.isNull()) {
        menu.addAction(QCoreApplication::translate("LanguageMenu", "No document is open"))->setEnabled(false);
        return;
    }
    const QStringList own = service.ownLanguagesOf(document);
    QAction* const usual = menu.addAction(QCoreApplication::translate("LanguageMenu", "As in the &Settings"));
    usual->setCheckable(true);
    usual->setChecked(own.isEmpty());
    QObject::connect(
        usual, &QAction::triggered, &service, [&service, document] { service.setLanguagesOf(document, {}); });
    menu.addSeparator();
    for (const QString& code : service.languages()) {
        QAction* const action = menu.addAction(languageTitle(code));
        action->setCheckable(true);
        action->setChecked(own.contains(code));
        QObject::connect(action, &QAction::triggered, &service, [&service, document, code](bool isOn) {
            QStringList languages = service.ownLanguagesOf(document);
            languages.removeAll(code);
            if (isOn)
                languages.append(code);
            service.setLanguagesOf(document, languages);
        });
    }
}

} // namespace tw::desktop::proofreading
