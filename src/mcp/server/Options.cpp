#include "mcp/server/Options.h"

#include <QCommandLineParser>

namespace tw::mcp::server {

using namespace Qt::Literals::StringLiterals;

core::Result<Options> readOptions(const QStringList& arguments, const QString& version)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Offers the tools of one Vellory project to an assistant, over the "
                                     u"Model Context Protocol on standard input and "
                                     "output."_s);
    parser.addPositionalArgument(u"project"_s, u"The project: a folder, or a single file."_s);
    const QCommandLineOption readOnly(
        u"read-only"_s, u"Offer only tools that change neither the project nor a file."_s);
    const QCommandLineOption families(
        u"families"_s, u"Offer only these families of tools: %1."_s.arg(familyNames().join(u", "_s)),
        u"names, parted by commas"_s);
    parser.addOptions({readOnly, families});
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption showVersion = parser.addVersionOption();

    if (!parser.parse(QStringList{u"vellory-mcp"_s} + arguments))
        return core::Failure{parser.errorText() + u" See --help."_s};
    if (parser.isSet(help))
        return Options{{}, {}, parser.helpText()};
    if (parser.isSet(showVersion))
        return Options{{}, {}, u"vellory-mcp %1\n"_s.arg(version)};
    const QStringList paths = parser.positionalArguments();
    if (paths.size() != 1)
        return core::Failure{u"Say which project to open: vellory-mcp PROJECT. See --help."_s};
    Options options{paths.constFirst(), {parser.isSet(readOnly), {}}, {}};
    for (const QString& value : parser.values(families)) {
        for (const QString& name : value.split(u',', Qt::SkipEmptyParts))
            options.tools.families.append(name.trimmed());
    }
    return options;
}

} // namespace tw::mcp::server
