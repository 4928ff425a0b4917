// bare_window: the smallest window that Qt can show, as large as the display. It ends once it was
// painted; with --stay it stays open. What the programs cost is measured against it.
#include <QApplication>
#include <QWidget>

namespace {

class BareWindow : public QWidget {
public:
    bool painted = false;

protected:
    void paintEvent(QPaintEvent *) override { painted = true; }
};

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    BareWindow window;
    window.showMaximized();
    const bool stays = application.arguments().contains(QStringLiteral("--stay"));
    while (stays || !window.painted)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return 0;
}
