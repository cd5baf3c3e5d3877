#pragma once

#include <cstdio>
#include <QByteArray>
#include <QTemporaryFile>
#include <unistd.h>

/// Redirects this process's standard output into a file for as long as it lives.
class StdoutCapture
{
public:
    StdoutCapture()
    {
        m_file.open();
        std::fflush(stdout);
        m_saved = dup(STDOUT_FILENO);
        dup2(m_file.handle(), STDOUT_FILENO);
    }
    ~StdoutCapture() { restore(); }
    StdoutCapture(const StdoutCapture &) = delete;
    StdoutCapture &operator=(const StdoutCapture &) = delete;

    /// Everything written so far, as lines.
    [[nodiscard]] QList<QByteArray> lines()
    {
        restore();
        m_file.seek(0);
        QList<QByteArray> result = m_file.readAll().split('\n');
        if (!result.isEmpty() && result.last().isEmpty())
            result.removeLast();
        return result;
    }

private:
    void restore()
    {
        if (m_saved < 0)
            return;
        std::fflush(stdout);
        dup2(m_saved, STDOUT_FILENO);
        close(m_saved);
        m_saved = -1;
    }

    QTemporaryFile m_file;
    int m_saved = -1;
};
