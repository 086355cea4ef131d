#include "testhome.h"

#include <QDir>
#include <QFile>
#include <QPushButton>

#include <cstdlib>
#include <unistd.h>

#include "mainwindow/appstart.h"

static QString g_home;

TestHome::TestHome()
{
    char pattern[] = "/tmp/rostera-test-XXXXXX";
    g_home = QString::fromLocal8Bit(mkdtemp(pattern));
    const QByteArray home = g_home.toLocal8Bit();
    setenv("HOME", home.constData(), 1);
    setenv("XDG_DATA_HOME", (home + "/.local/share").constData(), 1);
    setenv("XDG_CONFIG_HOME", (home + "/.config").constData(), 1);
    setenv("XDG_CACHE_HOME", (home + "/.cache").constData(), 1);
    setenv("XDG_RUNTIME_DIR", (home + "/run").constData(), 1);
    setenv("TMPDIR", (home + "/tmp").constData(), 1);
    QDir().mkpath(g_home + "/run");
    QFile::setPermissions(g_home + "/run", QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    QDir().mkpath(g_home + "/tmp");
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    setApplicationIdentity();
    Q_INIT_RESOURCE(rostera);
}

TestHome::~TestHome()
{
    if (!qEnvironmentVariableIsSet("ROSTERA_KEEP_TEST_HOME"))
        QDir(g_home).removeRecursively();
}

QString TestHome::path()
{
    return g_home;
}

BoxAnswer::BoxAnswer(QMessageBox::StandardButton button)
    : m_button(button)
{
    connect(&m_timer, &QTimer::timeout, this, &BoxAnswer::poll);
    m_timer.start(20);
}

void BoxAnswer::poll()
{
    for (QWidget *w : QApplication::topLevelWidgets()) {
        auto *box = qobject_cast<QMessageBox *>(w);
        if (!box || !box->isVisible() || m_seen.contains(box))
            continue;
        m_seen.append(box);
        m_texts.append(box->text());
        m_titles.append(box->windowTitle());
        m_buttons = box->standardButtons();
        m_default = box->defaultButton() ? box->standardButton(box->defaultButton()) : QMessageBox::NoButton;
        m_icon = box->icon();
        QAbstractButton *target = box->button(m_button);
        if (!target)
            target = box->defaultButton();
        if (target)
            QMetaObject::invokeMethod(target, "click", Qt::QueuedConnection);
        else
            QMetaObject::invokeMethod(box, "reject", Qt::QueuedConnection);
    }
}

ASAttribute record(std::initializer_list<std::pair<QString, QString>> values)
{
    ASAttribute r;
    for (const auto &value : values)
        r.setAttr(value.first, value.second);
    return r;
}
