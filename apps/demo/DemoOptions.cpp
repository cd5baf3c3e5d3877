#include "DemoOptions.h"

#include <cstdio>
#include <QApplication>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QMap>
#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace {

bool hasArgument(int argc, char **argv, const QList<QByteArrayView> &names)
{
    for (int i = 1; i < argc; ++i) {
        const QByteArrayView argument(argv[i]);
        for (const QByteArrayView name : names) {
            if (argument == name ||
                (argument.startsWith(name) && argument.sliced(name.size()).startsWith('=')))
                return true;
        }
    }
    return false;
}

int usageError(const QString &message)
{
    std::fprintf(stderr, "%s: %s\n",
                 qPrintable(QFileInfo(QCoreApplication::applicationFilePath()).fileName()),
                 qPrintable(message));
    return 2;
}

bool isOrigin(const QUrl &url)
{
    return url.isValid() && url.scheme() == u"https" && !url.host().isEmpty() &&
           (url.path().isEmpty() || url.path() == u"/") && !url.hasQuery() && !url.hasFragment() &&
           url.userInfo().isEmpty();
}

} // namespace

std::unique_ptr<QCoreApplication> createApplication(int &argc, char **argv)
{
    if (hasArgument(argc, argv, {"-h", "--help"}))
        return std::make_unique<QCoreApplication>(argc, argv);
    if (hasArgument(argc, argv, {"--preview"}))
        return std::make_unique<QGuiApplication>(argc, argv);
    return std::make_unique<QApplication>(argc, argv);
}

std::variant<DemoOptions, int> parseDemoOptions(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(u"A host application that opens the Nutrika carb calculator.\n"
                                     u"Without --service-origin it starts the bundled food-data service."_s);
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption preview(
        u"preview"_s, u"Show <screen> with sample data; without a name, list the screens."_s, u"screen"_s);
    const QCommandLineOption screenshot(u"screenshot"_s, u"Save the view as <file.png> and exit."_s,
                                        u"file.png"_s);
    const QCommandLineOption origin(
        u"service-origin"_s, u"Use the food-data service at <URL>, such as https://food.example.org."_s,
        u"URL"_s);
    const QCommandLineOption apiKey(u"api-key"_s, u"Send <KEY> as the service's API key."_s, u"KEY"_s);
    const QCommandLineOption caCert(
        u"ca-cert"_s, u"Trust the certificate authorities in the PEM <FILE> as well."_s, u"FILE"_s);
    const QCommandLineOption size(
        u"size"_s,
        u"Draw a preview or a picture in a window of <WxH> pixels, such as 1000x900 "
        u"(430x860 unless given)."_s,
        u"WxH"_s);
    const QCommandLineOption carbUnit(
        u"carb-unit"_s, u"Show a carbohydrate <unit> beside the grams: BE, KE or exchanges."_s, u"unit"_s);
    const QCommandLineOption netCarbs(u"net-carbs"_s,
                                      u"Show net carbohydrates (less fibre) beside the grams."_s);
    const QCommandLineOption fpu(u"fpu"_s, u"Show the meal's fat-protein units and absorption time."_s);
    const QCommandLineOption undo(u"undo"_s, u"Offer \"Undo\" after a line is removed."_s);
    const QCommandLineOption recent(u"recent-foods"_s,
                                    u"List the foods lately added before a search is typed."_s);
    const QCommandLineOption language(
        u"language"_s, u"Show the module in <language>: de, fr or en (the system's unless given)."_s,
        u"language"_s);
    parser.addOptions(
        {preview, screenshot, origin, apiKey, caCert, size, carbUnit, netCarbs, fpu, undo, recent, language});
    if (!parser.parse(arguments))
        return usageError(parser.errorText());
    if (parser.isSet(help)) {
        std::fputs(qPrintable(parser.helpText()), stdout);
        return 0;
    }
    if (!parser.positionalArguments().isEmpty())
        return usageError(u"unexpected argument \"%1\""_s.arg(parser.positionalArguments().constFirst()));

    DemoOptions options;
    options.preview = parser.value(preview);
    options.screenshot = parser.value(screenshot);
    if (parser.isSet(origin)) {
        options.serviceOrigin = QUrl(parser.value(origin), QUrl::StrictMode);
        if (!isOrigin(options.serviceOrigin))
            return usageError(
                u"--service-origin needs an https origin such as https://food.example.org, not \"%1\""_s.arg(
                    parser.value(origin)));
    }
    options.apiKey = parser.value(apiKey);
    if (parser.isSet(apiKey) && options.apiKey.isEmpty())
        return usageError(u"--api-key needs a key"_s);
    if (options.apiKey.contains(u'\n') || options.apiKey.contains(u'\r'))
        return usageError(u"--api-key must not hold a line break"_s);
    for (const QString &file : parser.values(caCert)) {
        const QList<QSslCertificate> certificates = QSslCertificate::fromPath(file, QSsl::Pem);
        if (certificates.isEmpty())
            return usageError(u"--ca-cert: \"%1\" holds no PEM certificate"_s.arg(file));
        options.caCertificates += certificates;
    }
    if (parser.isSet(size)) {
        static const QRegularExpression pattern(u"^(\\d{3,4})x(\\d{3,4})$"_s);
        const QRegularExpressionMatch match = pattern.match(parser.value(size));
        if (!match.hasMatch())
            return usageError(
                u"--size needs a width and a height in pixels such as 1000x900, not \"%1\""_s.arg(
                    parser.value(size)));
        options.windowSize = QSize(match.captured(1).toInt(), match.captured(2).toInt());
    }
    if (parser.isSet(carbUnit)) {
        static const QMap<QString, nutrika::CarbUnit> units = {{u"BE"_s, nutrika::CarbUnit::BE},
                                                               {u"KE"_s, nutrika::CarbUnit::KE},
                                                               {u"exchanges"_s, nutrika::CarbUnit::Exchanges},
                                                               {u"g"_s, nutrika::CarbUnit::Grams}};
        if (!units.contains(parser.value(carbUnit)))
            return usageError(
                u"--carb-unit needs BE, KE, exchanges or g, not \"%1\""_s.arg(parser.value(carbUnit)));
        options.hostOptions.carbUnit = units.value(parser.value(carbUnit));
    }
    options.hostOptions.netCarbohydrates = parser.isSet(netCarbs);
    options.hostOptions.fatProteinUnits = parser.isSet(fpu);
    options.hostOptions.undoRemoval = parser.isSet(undo);
    options.hostOptions.recentFoods = parser.isSet(recent);
    options.hostOptions.language = parser.value(language);
    return options;
}
