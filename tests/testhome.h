#pragma once

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <QtTest>

#include <initializer_list>
#include <utility>

#include "core/asattribute.h"

// Gives the test program a home of its own: HOME and the XDG folders point into a fresh
// temporary folder before the application object exists, so no real user data is touched.
// The application identity is the program's, so the data location has the program's layout.
class TestHome
{
public:
    TestHome();
    ~TestHome();
    static QString path();
};

// A record of the given keys and values, for building test data.
ASAttribute record(std::initializer_list<std::pair<QString, QString>> values);

// While it lives, answers every message box that comes up with the given button
// (or the box's default button when it has no such button) and keeps their words.
class BoxAnswer : public QObject
{
    Q_OBJECT
public:
    explicit BoxAnswer(QMessageBox::StandardButton button = QMessageBox::Ok);
    QStringList texts() const { return m_texts; }
    QStringList titles() const { return m_titles; }
    QString text() const { return m_texts.value(0); }
    int shown() const { return m_texts.size(); }
    // Buttons of the last box answered, and which was its default.
    QMessageBox::StandardButtons buttons() const { return m_buttons; }
    QMessageBox::StandardButton defaultButton() const { return m_default; }
    QMessageBox::Icon icon() const { return m_icon; }

private:
    void poll();
    QMessageBox::StandardButton m_button;
    QTimer m_timer;
    QStringList m_texts;
    QStringList m_titles;
    QMessageBox::StandardButtons m_buttons;
    QMessageBox::StandardButton m_default = QMessageBox::NoButton;
    QMessageBox::Icon m_icon = QMessageBox::NoIcon;
    QList<QPointer<QMessageBox>> m_seen;
};

#define ROSTERA_TEST_MAIN(TestObject)                 \
    int main(int argc, char **argv)                   \
    {                                                 \
        TestHome home;                                \
        QApplication app(argc, argv);                 \
        TestObject tc;                                \
        QTEST_SET_MAIN_SOURCE_PATH                    \
        return QTest::qExec(&tc, argc, argv);         \
    }
