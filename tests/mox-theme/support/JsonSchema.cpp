#include "JsonSchema.h"

#include <QtCore/QProcess>

QString schemaProblem(const QByteArray &document, const QString &schema)
{
    const QString script =
        QStringLiteral("import json, sys, jsonschema\n"
                       "schema = json.load(open(sys.argv[1]))\n"
                       "validator = jsonschema.Draft7Validator(schema)\n"
                       "validator.check_schema(schema)\n"
                       "for problem in validator.iter_errors(json.load(sys.stdin)):\n"
                       "    print(problem.json_path, problem.message)\n");
    QProcess python;
    python.start(QStringLiteral("/usr/bin/python3"), {QStringLiteral("-c"), script, schema});
    python.write(document);
    python.closeWriteChannel();
    if (!python.waitForFinished()) {
        return python.errorString();
    }
    return QString::fromUtf8(python.readAllStandardOutput() + python.readAllStandardError());
}
