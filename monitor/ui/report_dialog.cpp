#include <zor/monitor/parts/framed_marks.h>
#include <zor/monitor/ui/report_dialog.h>

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace zor::monitor {

ReportDialog::ReportDialog(bool curves, QWidget* parent)
    : QDialog(parent), m_file(new QLineEdit), m_picture(new QCheckBox(tr("With a &picture of the trend")))
{
    setWindowTitle(tr("Report"));
    auto* what = new QLabel(
        tr("The report holds what the device is, every parameter with its value, and what has been written "
           "in this session. All parameters are read first."));
    what->setWordWrap(true);
    auto* label = new QLabel(tr("&Differences to a settings file (may be empty):"));
    label->setBuddy(m_file);
    auto* browse = new QPushButton(tr("&Browse..."));
    connect(browse, &QPushButton::clicked, this, [this] {
        const QString file =
            QFileDialog::getOpenFileName(this, tr("Settings file"), m_file->text(), tr("Settings files (*.json)"));
        if (!file.isEmpty())
            m_file->setText(file);
    });
    auto* line = new QHBoxLayout;
    line->addWidget(m_file, 1);
    line->addWidget(browse);
    m_picture->setEnabled(curves);
    m_picture->setChecked(curves);
    FramedMarks::on(*m_picture);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    buttons->addButton(tr("&Save..."), QDialogButtonBox::AcceptRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->addWidget(what);
    column->addWidget(label);
    column->addLayout(line);
    column->addWidget(m_picture);
    column->addStretch(1);
    column->addWidget(buttons);
    constexpr int kWidth = 460;
    resize(kWidth, sizeHint().height());
}

QString ReportDialog::compared() const { return m_file->text().trimmed(); }

bool ReportDialog::hasPicture() const { return m_picture->isChecked(); }

} // namespace zor::monitor
