// PrintPainter: lays a print job out on paper and paints it. Also the one place that makes a PDF.
#pragma once

#include "platform/print_job.h"

#include <QByteArray>
#include <QFont>
#include <QImage>
#include <QSizeF>

#include <functional>
#include <map>
#include <memory>
#include <vector>

class QPaintDevice;
class QPainter;
class QRectF;
class QSvgRenderer;

namespace platform {

/// A banner picture of assets/banners/, whose view box is in tenths of a millimetre.
struct Banner {
    explicit Banner(const QString &path);
    ~Banner();

    QSizeF tenths;
    std::unique_ptr<QSvgRenderer> drawing;
    /// The same in black and white dots: a PDF with it is made in half the time of one with the
    /// drawing, and holds it once however often it is painted.
    QImage dots;
};

/// The banners, read when first asked for and kept.
class Banners {
public:
    /// Null for a name that is not known.
    const Banner *find(const std::string &name);

private:
    std::map<std::string, std::unique_ptr<Banner>> read;
};

/// What a Cut operation is on this paper.
enum class CutStyle {
    Mark,       // a dashed line across the paper
    DriverFont, // the line "P" in the driver's font "control", which works the knife
};

/// Lines stand at the left edge, one under the other, each as high as its font. A line wider than
/// the paper is condensed to fit, never cut or wrapped. A picture is centred at its natural size
/// (made smaller where the paper is narrower) and takes no line of its own: the blank lines below
/// pass it, and a line with text never stands in it.
class PrintPainter {
public:
    /// `device` gives the resolution; `width` is the printable width and `pageHeight` the
    /// printable height in its dots. A height of 0 is a roll, on which a new page is a gap.
    PrintPainter(QPaintDevice &theDevice, Banners &theBanners, double theWidth,
                 double thePageHeight, CutStyle theCutStyle);

    /// The height of the whole job in dots, as on a roll.
    double measure(const PrintJob &job);
    /// Paints the job; `newPage` is called between two pages.
    void paint(const PrintJob &job, QPainter &onto, const std::function<void()> &newPage);

private:
    struct Piece {
        double x;
        QString text;
    };

    void walk(const PrintJob &job);
    void restart();
    void setFont(const PrintFont &font);
    void setTabs(const std::string &text);
    void line(const QString &text);
    void paintLine(const QString &text, double baseline);
    std::vector<Piece> layOut(const QString &text, double &width) const;
    double nextTab(double x) const;
    void picture(const std::string &name);
    void paintBanner(const Banner &banner, const QRectF &place);
    void cut();
    void breakPage();
    /// Starts a new page where `height` does not fit below the present position.
    void makeRoom(double height);
    double dots(double millimetres) const;

    QPaintDevice &device;
    Banners &banners;
    double width;
    double pageHeight;
    CutStyle cutStyle;
    QPainter *painter = nullptr; // null while measuring
    std::function<void()> turnPage;

    QFont font;
    std::vector<double> tabs;
    double y = 0;
    double pictureBottom = 0;
};

/// The job as a PDF: on paper of up to kWidestRoll a single portrait page as long as the job,
/// else pages of `heightMm` (279 for 0).
QByteArray paintPdf(const PrintJob &job, Banners &banners, double widthMm, double heightMm);

constexpr double kWidestRoll = 80;
/// Of 80 mm of paper a receipt printer reaches 72, of 58 it reaches 48.
double printableRollWidth(double widthMm);

} // namespace platform
