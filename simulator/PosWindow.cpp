// The whole program sim_pos_window.
#include "simulator/PosWindow.h"

#include "platform/qt/qt_text.h"
#include "platform/qt/screen.h"
#include "ui_PosWindow.h"

#include <QApplication>
#include <QClipboard>
#include <QStyle>

namespace simulator {

namespace {

constexpr int kBetweenLooks = 50; // ms

QString asTable(const std::vector<AnswerLine> &lines)
{
    QString rows;
    for (const auto &[name, value] : lines)
        rows +=
            QStringLiteral(
                "<tr><td style='color:#5b6b7b'>%1&nbsp;&nbsp;&nbsp;</td><td>%2</td></tr>")
                .arg(platform::toQt(name).toHtmlEscaped(), platform::toQt(value).toHtmlEscaped());
    return QStringLiteral("<table cellspacing='1'>%1</table>").arg(rows);
}

} // namespace

PosWindow::PosWindow(PosDesk &theDesk) : ui(std::make_unique<Ui::PosWindow>()), desk(theDesk)
{
    ui->setupUi(this);
    setAttribute(Qt::WA_StyledBackground);
    setWindowFlags(Qt::Window);
    const SampleCard card;
    ui->Number->setText(QString::fromLatin1(card.number));
    ui->Expires->setText(QString::fromLatin1(card.expiry));
    ui->Verify->setText(QString::fromLatin1(card.verify));
    ui->Folder->setText(platform::toQt(desk.drivesFolder()));
    (desk.mode() == Mode::Local ? ui->Local : ui->CommandLine)->setChecked(true);
    showMode();
    connect(ui->TakeCard, &QPushButton::clicked, this, &PosWindow::TakeCard_clicked);
    connect(ui->Local, &QRadioButton::toggled, this, &PosWindow::showMode);
    connect(ui->Samples, &QListWidget::currentRowChanged, this, &PosWindow::showSample);
    connect(ui->CopyTrack, &QPushButton::clicked, this, [track = card.track] {
        QApplication::clipboard()->setText(QString::fromLatin1(track));
    });
    connect(&Clock, &QTimer::timeout, this, &PosWindow::Clock_timeout);
    Clock.start(kBetweenLooks);
}

PosWindow::~PosWindow() = default;

Mode PosWindow::mode() const
{
    return ui->Local->isChecked() ? Mode::Local : Mode::CommandLine;
}

void PosWindow::TakeCard_clicked()
{
    const std::string trouble = desk.begin({platform::fromQt(ui->Table->text()),
                                            platform::fromQt(ui->Receipt->text()),
                                            platform::fromQt(ui->Server->text()),
                                            platform::fromQt(ui->Amount->text()),
                                            {}},
                                           mode());
    if (trouble.empty())
        showRunning(true);
    else
        showResult(platform::toQt(trouble), "attention");
}

void PosWindow::Clock_timeout()
{
    if (endAsked())
        close();
    if (waiting && !desk.tenderRuns())
        showAnswer();
}

void PosWindow::showMode()
{
    ui->CardToGive->setEnabled(mode() == Mode::Local);
    samples = sampleAmounts(mode());
    const QSignalBlocker quiet(ui->Samples);
    ui->Samples->clear();
    ui->Meaning->clear();
    for (const SampleAmount &sample : samples)
        (new QListWidgetItem(platform::toQt(sample.amount + "  " + sample.outcome), ui->Samples))
            ->setSizeHint(ui->Samples->gridSize());
}

void PosWindow::showSample(int row)
{
    if (row < 0)
        return;
    const SampleAmount &sample = samples[static_cast<std::size_t>(row)];
    ui->Amount->setText(platform::toQt(sample.amount));
    ui->Meaning->setText(platform::toQt(sample.amount + ": " + sample.meaning));
}

void PosWindow::showRunning(bool running)
{
    waiting = running;
    ui->TakeCard->setEnabled(!running);
    ui->Request->setEnabled(!running);
    if (running) {
        ui->Answer->clear();
        showResult(tr("Taking the card of receipt %1").arg(ui->Receipt->text()), "");
    }
}

void PosWindow::showAnswer()
{
    showRunning(false);
    const std::vector<AnswerLine> lines = desk.answer();
    ui->Answer->setText(asTable(lines));
    if (lines.empty()) {
        showResult(tr("The tender ended without an answer"), "attention");
        return;
    }
    const std::string &word = lines.front().second;
    showResult(platform::toQt(word), word == "Approved"   ? "approved"
                                     : word == "Declined" ? "declined"
                                                          : "attention");
    ui->Receipt->setText(platform::toQt(nextReceipt(platform::fromQt(ui->Receipt->text()))));
    ui->TakeCard->setFocus();
}

void PosWindow::showResult(const QString &words, const char *state)
{
    ui->Result->setText(words);
    ui->Result->setProperty("state", QString::fromLatin1(state));
    style()->unpolish(ui->Result);
    style()->polish(ui->Result);
}

} // namespace simulator

int main(int argc, char **argv)
{
    QApplication::setStyle(QStringLiteral("fusion"));
    QApplication application(argc, argv);
    platform::applyTheme(application);
    simulator::listenForEnd();
    const QStringList words = QApplication::arguments();
    const qsizetype at = words.indexOf(QStringLiteral("--drives"));
    simulator::PosDesk desk(at < 0 ? std::string() : words.value(at + 1).toStdString());
    simulator::PosWindow window(desk);
    window.show();
    return QApplication::exec();
}
