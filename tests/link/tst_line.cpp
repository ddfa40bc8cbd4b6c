// SPDX-License-Identifier: GPL-3.0-or-later
#include "../rows.h"
#include "device/portclaim.h"
#include "link/serialthread.h"
#include "linktest.h"

#include <algorithm>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace
{

constexpr tcflag_t strangeInput = INPCK | ICRNL | IXANY;

/// A line that has everything on which the opening must change, or must leave alone.
void disturb(const QString &port)
{
    const int fd = ::open(qPrintable(port), O_RDWR | O_NOCTTY);
    termios line{};
    tcgetattr(fd, &line);
    line.c_iflag = strangeInput;
    line.c_oflag = OPOST | ONLCR;
    line.c_cflag = CS7 | PARENB | CSTOPB | CLOCAL;
    line.c_lflag = ICANON | ISIG | ECHO | ECHOE | ECHOK | ECHONL | IEXTEN;
    std::ranges::fill(line.c_cc, cc_t(7));
    cfsetispeed(&line, B9600);
    cfsetospeed(&line, B9600);
    tcsetattr(fd, TCSANOW, &line);
    ::close(fd);
}

const Rows<bool, uint> settingsRows{
    {"soft flow control", true, uint(IXON | IXOFF)},
    {"input left alone", false, uint(strangeInput)},
};

const Rows<QString, int> refusalsRows{
    {"no such device", u"/dev/no-such-port"_s, ENOENT},
    {"file", u"Data/phonebook"_s, ENOTTY},
    {"folder", u"Data"_s, ENOTTY},
    {"no terminal", u"/dev/null"_s, ENOTTY},
    {"empty name", {}, ENOENT},
};

} // namespace

class TestLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void settings_data() { addRows(settingsRows); }
    void settings()
    {
        const auto &[name, softFlowControl, input] = currentRow(settingsRows);
        Pty pty;
        const int keepsLine = ::open(qPrintable(pty.name()), O_RDWR | O_NOCTTY);
        disturb(pty.name());
        SerialThread link(&m_owner);
        const int fd =
            softFlowControl ? link.openPort(pty.name()) : link.openPortWithoutSoftFlowControl(pty.name());
        QVERIFY(fd > 0);
        QCOMPARE(link.descriptor(), fd);

        termios line{};
        QCOMPARE(tcgetattr(fd, &line), 0);
        QCOMPARE(uint(line.c_iflag), input);
        QCOMPARE(line.c_oflag, tcflag_t(0));
        QCOMPARE(line.c_lflag, tcflag_t(ECHONL | IEXTEN));
        // A pseudo-terminal insists on 8 bits without parity; what it keeps of the rest is compared.
        QCOMPARE(line.c_cflag & ~tcflag_t(CBAUD), tcflag_t(CS8 | CREAD | HUPCL | CRTSCTS));
        QCOMPARE(cfgetispeed(&line), speed_t(B115200));
        QCOMPARE(cfgetospeed(&line), speed_t(B115200));
        for (int i = 0; i < NCCS; ++i)
            QCOMPARE(int(line.c_cc[i]), i == VMIN ? 1 : 0);
        QCOMPARE(fcntl(fd, F_GETFL) & (O_ACCMODE | O_NONBLOCK), O_RDWR);

        QVERIFY(link.closePortNormal(fd));
        QCOMPARE(link.descriptor(), fd);
        QVERIFY(!link.closePortNormal(-1));
        ::close(keepsLine);
    }

    void refusals_data() { addRows(refusalsRows); }
    void refusals()
    {
        const auto &[name, path, error] = currentRow(refusalsRows);
        putFile(u"Data/phonebook"_s, "a name");
        SerialThread link(&m_owner);
        const qsizetype before = openDescriptors();

        errno = 0;
        QCOMPARE(link.openPort(path), -1);
        QCOMPARE(int(errno), error);
        QCOMPARE(link.descriptor(), -1);
        QCOMPARE(openDescriptors(), before);
        QCOMPARE(contentOf(u"Data/phonebook"_s), "a name");
    }

    void portOfAnotherProgramIsLeftAsItWas()
    {
        Pty pty;
        const int holder = ::open(qPrintable(pty.name()), O_RDWR | O_NOCTTY);
        QCOMPARE(flock(holder, LOCK_EX | LOCK_NB), 0);
        disturb(pty.name());
        pty.write("+CSQ: 5\n");
        const auto waiting = [&] {
            int bytes = 0;
            ioctl(holder, FIONREAD, &bytes);
            return bytes;
        };
        QTRY_COMPARE(waiting(), 8);
        const qsizetype before = openDescriptors();

        SerialThread link(&m_owner);
        const qsizetype own = openDescriptors() - before;
        QCOMPARE(link.openPort(pty.name(), corva::claimPort), -1);
        QCOMPARE(int(errno), EWOULDBLOCK);
        QCOMPARE(link.descriptor(), -1);
        QCOMPARE(openDescriptors(), before + own);
        QCOMPARE(waiting(), 8);
        termios line{};
        QCOMPARE(tcgetattr(holder, &line), 0);
        QCOMPARE(uint(line.c_iflag), uint(strangeInput));

        flock(holder, LOCK_UN);
        const int fd = link.openPort(pty.name(), corva::claimPort);
        QVERIFY(fd > 0);
        QVERIFY(flock(holder, LOCK_EX | LOCK_NB) != 0);
        link.closePortNormal(fd);
        ::close(holder);
    }

private:
    ScratchFolder m_folder;
    FakeOwner m_owner;
};

QTEST_GUILESS_MAIN(TestLine)
#include "tst_line.moc"
