#pragma once

#include <zor/monitor/data/json_document.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zor::tests {

/// Writes a file anew; answers its name.
inline QString writeFile(const QString& name, const QByteArray& text)
{
    QFile file(name);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(text) == text.size());
    return name;
}

inline QByteArray textIn(const QString& name)
{
    QFile file(name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return file.readAll();
}

/// How a program ended, and what it printed.
struct Exit {
    int status;
    QString out;
    QString error;
};

/// Runs the monitor while this program's peers answer it.
inline Exit runMonitor(const QStringList& arguments)
{
    QProcess program;
    program.start(ZOR_MONITOR, arguments);
    constexpr int kLongest = 60000;
    EXPECT_TRUE(QTest::qWaitFor([&] { return program.state() == QProcess::NotRunning; }, kLongest));
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit) << "crashed";
    return {program.exitCode(), program.readAllStandardOutput(), program.readAllStandardError()};
}

/// A change of a good file, and what the reader's refusal begins with.
struct Damage {
    QByteArray from;
    QByteArray to;
    const char* error = ""; ///< nullptr: taken; empty: taken or refused
    bool schemaSees = true;
};

/// Each change is refused as its row says, and the schema of docs/ takes what the reader takes.
template <class Reader>
void expectRefusals(const QByteArray& good, const std::vector<Damage>& rows, const char* schema, Reader read)
{
    QTemporaryDir folder;
    QStringList arguments{"-W", "ignore", "-c",
                          "import json,sys,jsonschema as j\ns=json.load(open(sys.argv[1]))\n"
                          "print(*[int(j.Draft202012Validator(s).is_valid(json.load(open(f)))) for f in "
                          "sys.argv[2:]])",
                          QString(ZOR_TEST_DATA "/../../docs/") + schema};
    QStringList expected;
    for (const Damage& row : rows) {
        QByteArray text = good;
        text.replace(text.indexOf(row.from), row.from.size(), row.to);
        std::string error;
        try {
            (void)read(text.toStdString());
        } catch (const monitor::FileError& refused) {
            error = refused.what();
        }
        EXPECT_TRUE(row.error == nullptr ? error.empty() : error.starts_with(row.error))
            << row.to.left(40).constData() << ": " << error;
        if (!row.schemaSees)
            continue;
        arguments.append(writeFile(folder.filePath(QString("%1.json").arg(expected.size())), text));
        expected.append(error.empty() ? "1" : "0");
    }
    QProcess checker;
    checker.start("/usr/bin/python3", arguments);
    EXPECT_TRUE(checker.waitForFinished());
    EXPECT_EQ(checker.readAllStandardOutput().trimmed().toStdString(), expected.join(' ').toStdString())
        << checker.readAllStandardError().toStdString();
}

} // namespace zor::tests
