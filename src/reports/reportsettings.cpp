#include "reports/reportsettings.h"

#include <QCheckBox>
#include <QDomDocument>
#include <QLineEdit>

#include "ui_reportsettings.h"

ReportSettings::ReportSettings(QWidget *parent)
    : QDialog(parent)
    , ui(new Ui_ReportSettings)
{
    ui->setupUi(this);
}

ReportSettings::~ReportSettings()
{
    delete ui;
}

void ReportSettings::setTypes(const QStringList &names, bool)
{
    ui->comboBox->addItems(names);
    // The two monthly reports get no page here. Their editors stay alive as children of the dialog,
    // so a title stored for them passes through setData and getData unchanged.
    for (int index : {4, 3}) {
        ui->comboBox->removeItem(index);
        if (QWidget *page = ui->stackedWidget->widget(index))
            ui->stackedWidget->removeWidget(page);
    }
}

void ReportSettings::on_comboBox_currentIndexChanged(int index)
{
    ui->stackedWidget->setCurrentIndex(index);
}

QString ReportSettings::getData() const
{
    QDomDocument doc;
    QDomElement root = doc.createElement("report");
    doc.appendChild(root);
    for (int i = 0; i < 12; ++i) {
        QDomElement type = doc.createElement(QString("type%1").arg(i));
        if (auto *title = findChild<QLineEdit *>(QString("ed_title%1").arg(i)))
            type.setAttribute("title", title->text());
        if (auto *detail = findChild<QCheckBox *>(QString("ck_printDetail%1").arg(i)))
            type.setAttribute("printDetail", detail->isChecked() ? 1 : 0);
        root.appendChild(type);
    }
    return doc.toString(1);
}

void ReportSettings::setData(const QString &xml)
{
    QDomDocument doc;
    if (!doc.setContent(xml))
        return;
    for (int i = 0; i < 12; ++i) {
        const QDomElement type = doc.documentElement().firstChildElement(QString("type%1").arg(i));
        if (type.isNull())
            continue;
        if (auto *title = findChild<QLineEdit *>(QString("ed_title%1").arg(i)))
            title->setText(type.attribute("title"));
        if (auto *detail = findChild<QCheckBox *>(QString("ck_printDetail%1").arg(i)))
            detail->setChecked(type.attribute("printDetail").toInt() != 0);
    }
}
