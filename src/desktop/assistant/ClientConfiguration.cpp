#include "desktop/assistant/ClientConfiguration.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace tw::desktop::assistant {

using namespace Qt::Literals::StringLiterals;

namespace {

#ifdef Q_OS_WIN
constexpr QLatin1StringView companionName("vellory-mcp.exe");
#else
constexpr QLatin1StringView companionName("vellory-mcp");
#endif

QString json(const QJsonObject& object)
{
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Indented)).trimmed();
}

/** JSON's way of quoting a text is TOML's as well. */
QString quoted(const QString& text)
{
    const QByteArray list = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(list.mid(1, list.size() - 2));
}

QString shellQuoted(const QString& text)
{
    return u'\'' + QString(text).replace(u'\'', u"'\\''"_s) + u'\'';
}

} // namespace

QString serverNameFor(const QString& projectName)
{
    QString name;
    for (const QChar character : projectName.normalized(QString::NormalizationForm_KD).toLower()) {
        const char plain = character.toLatin1();
        const bool isKept = (plain >= 'a' && plain <= 'z') || (plain >= '0' && plain <= '9');
        if (isKept)
            name += character;
        else if (!character.isMark() && !name.isEmpty() && !name.endsWith(u'-'))
            name += u'-';
    }
    while (name.endsWith(u'-'))
        name.chop(1);
    return name.isEmpty() ? u"vellory"_s : name;
}

QString clientConfiguration(ClientForm form, const ServerCommand& command)
{
    const QJsonObject server{
        {u"command"_s, command.program}, {u"args"_s, QJsonArray::fromStringList(command.arguments)}};
    switch (form) {
    case ClientForm::ServersByName:
        return json({{u"mcpServers"_s, QJsonObject{{command.name, server}}}});
    case ClientForm::TypedServers: {
        QJsonObject typed = server;
        typed.insert(u"type"_s, u"stdio"_s);
        return json({{u"servers"_s, QJsonObject{{command.name, typed}}}});
    }
    case ClientForm::Toml: {
        QStringList arguments;
        for (const QString& argument : command.arguments)
            arguments.append(quoted(argument));
        return u"[mcp_servers.%1]\ncommand = %2\nargs = [%3]"_s.arg(
            command.name, quoted(command.program), arguments.join(u", "_s));
    }
    case ClientForm::CommandLine: {
        QStringList words{shellQuoted(command.program)};
        for (const QString& argument : command.arguments)
            words.append(shellQuoted(argument));
        return words.join(u' ');
    }
    }
    Q_UNREACHABLE();
}

QString companionProgram(const QString& applicationFolder)
{
    // Installed, both lie in one folder; in a build, each in its own.
    for (const QLatin1StringView folder : {"."_L1, "../mcp"_L1}) {
        const QFileInfo file(QDir(applicationFolder + u'/' + folder).filePath(companionName));
        if (file.isExecutable())
            return QDir::toNativeSeparators(file.canonicalFilePath());
    }
    return companionName;
}

} // namespace tw::desktop::assistant
