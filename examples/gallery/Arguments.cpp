// SPDX-License-Identifier: MIT
#include "Arguments.h"

#include "Sheet.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

const char* const kUsage =
    R"(Usage: gallery                             show the gallery in a window
       gallery [--png FILE [--ratio N]] [--pdf FILE]
       gallery --compare FILE [--with FILE] [--difference FILE]

Draws every drawing call and every setting of the device context in labelled cells.

  --png FILE         write the sheet as a picture
  --ratio N          draw it with N times as many pixels each way: 1, 1.5, 2 or 3
  --pdf FILE         write the sheet as a page

  --compare FILE     compare the sheet drawn now, at the picture's ratio, with a picture of --png;
                     print how many pixels differ, and in which cells
  --with FILE        compare that picture in place of the sheet drawn now
  --difference FILE  write the sheet, pale, with those pixels in red

  -h, --help

Exit status: 0; 1 if the compared sheets differ; 2 if a file or an argument cannot be used.

To compare this machine's sheet with the one that came with the library:

    gallery --compare docs/gallery.png --difference difference.png
)";

namespace {

const QString kPng = QStringLiteral("png");
const QString kPdf = QStringLiteral("pdf");
const QString kRatio = QStringLiteral("ratio");
const QString kCompare = QStringLiteral("compare");
const QString kWith = QStringLiteral("with");
const QString kDifference = QStringLiteral("difference");
const QString kHelp = QStringLiteral("help");

QStringList decoded(int count, char** values)
{
    QStringList list;
    for (int i = 0; i < count; ++i)
        list.append(QFile::decodeName(values[i]));
    return list;
}

void addOptions(QCommandLineParser& parser)
{
    for (const QString& name : {kPng, kPdf, kRatio, kCompare, kWith, kDifference})
        parser.addOption({name, QString(), name});
    parser.addOption(QCommandLineOption(QStringList{QStringLiteral("h"), kHelp}));
}

// An empty value would be taken for an option that is not there.
QString emptyValue(const QCommandLineParser& parser)
{
    for (const QString& name : {kPng, kPdf, kRatio, kCompare, kWith, kDifference})
        if (parser.isSet(name) && parser.value(name).isEmpty())
            return QStringLiteral("--%1 needs a value").arg(name);
    return QString();
}

QString misplacedOption(const QCommandLineParser& parser)
{
    const bool compares = parser.isSet(kCompare);
    if (compares && (parser.isSet(kPng) || parser.isSet(kPdf) || parser.isSet(kRatio)))
        return QStringLiteral("--compare writes no sheet, so it takes no --png, --pdf or --ratio");
    for (const QString& name : {kWith, kDifference})
        if (parser.isSet(name) && !compares)
            return QStringLiteral("--%1 needs --compare").arg(name);
    if (parser.isSet(kRatio) && !parser.isSet(kPng))
        return QStringLiteral("--ratio needs --png");
    return QString();
}

// The picture that is compared would be lost.
QString overwrittenPicture(const QCommandLineParser& parser)
{
    const QString difference = QFileInfo(parser.value(kDifference)).canonicalFilePath();
    for (const QString& name : {kCompare, kWith})
        if (!difference.isEmpty() &&
            QFileInfo(parser.value(name)).canonicalFilePath() == difference)
            return QStringLiteral("--difference would replace the picture of --%1").arg(name);
    return QString();
}

QString wrongRatio(const QCommandLineParser& parser, double ratio)
{
    if (!parser.isSet(kRatio) || ratio > 0)
        return QString();
    return QStringLiteral("--ratio is 1, 1.5, 2 or 3, not \"%1\"").arg(parser.value(kRatio));
}

double ratioOf(const QString& text)
{
    for (const double ratio : kRatios)
        if (text == QString::number(ratio))
            return ratio;
    return 0;
}

QString unknownArgument(const QCommandLineParser& parser)
{
    const QStringList others = parser.positionalArguments();
    return others.isEmpty() ? QString()
                            : QStringLiteral("\"%1\" belongs to no option").arg(others.first());
}

// Qt ends some of its messages with a full stop, which is one too many in front of more text.
QString parserError(const QCommandLineParser& parser)
{
    QString text = parser.errorText();
    if (text.endsWith(u'.'))
        text.chop(1);
    return text;
}

QString firstError(const QCommandLineParser& parser, double ratio)
{
    for (const QString& error :
         {unknownArgument(parser), emptyValue(parser), misplacedOption(parser),
          overwrittenPicture(parser), wrongRatio(parser, ratio)})
        if (!error.isEmpty())
            return error;
    return QString();
}

} // namespace

Arguments readArguments(int count, char** values)
{
    Arguments arguments;
    QCommandLineParser parser;
    addOptions(parser);
    const bool parsed = parser.parse(decoded(count, values));
    arguments.help = parsed && parser.isSet(kHelp);
    arguments.png = parser.value(kPng);
    arguments.pdf = parser.value(kPdf);
    arguments.compare = parser.value(kCompare);
    arguments.with = parser.value(kWith);
    arguments.difference = parser.value(kDifference);
    arguments.ratio = ratioOf(parser.value(kRatio));
    arguments.error = parsed ? firstError(parser, arguments.ratio) : parserError(parser);
    return arguments;
}
