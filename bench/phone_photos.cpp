// Makes photos as telephones write them out of a few others, for trials of whole batches: JPEG of
// many sizes and qualities, some lying on their side with a mark that says so.
//   phone_photos FOLDER COUNT PHOTO...

#include <QGuiApplication>
#include <QImage>
#include <QImageWriter>
#include <array>
#include <cstdio>
#include <cstdlib>

namespace {

struct Shape {
    int Longest;  // pixels
    int Quality;
    QImageIOHandler::Transformation Turn;
};

constexpr std::array<Shape, 7> kShapes = {{
    {4032, 92, QImageIOHandler::TransformationNone},
    {1280, 75, QImageIOHandler::TransformationNone},
    {3264, 85, QImageIOHandler::TransformationRotate90},
    {1600, 60, QImageIOHandler::TransformationNone},
    {2048, 95, QImageIOHandler::TransformationRotate270},
    {4000, 80, QImageIOHandler::TransformationRotate180},
    {960, 88, QImageIOHandler::TransformationNone},
}};

bool Write(const QString& file, const QImage& photo, const Shape& shape) {
    const bool lying = shape.Turn == QImageIOHandler::TransformationRotate90 ||
                       shape.Turn == QImageIOHandler::TransformationRotate270;
    QImage picture =
        photo.scaled(shape.Longest, shape.Longest, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    if (lying) {
        picture = picture.transformed(QTransform().rotate(-90));
    }
    QImageWriter writer(file, "jpeg");
    writer.setQuality(shape.Quality);
    writer.setTransformation(shape.Turn);
    return writer.write(picture);
}

}  // namespace

int main(int argc, char** argv) {
    constexpr int kWords = 4;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const int count = argc < kWords ? 0 : std::atoi(argv[2]);
    if (count < 1) {
        std::fputs("phone_photos FOLDER COUNT PHOTO...\n", stderr);
        return 2;
    }
    for (int i = 0; i < count; ++i) {
        const char* const source = argv[3 + i % (argc - 3)];
        const QString file = QString("%1/IMG_%2.jpg").arg(argv[1]).arg(i + 1, 4, 10, QChar('0'));
        const Shape& shape = kShapes.at(static_cast<std::size_t>(i) % kShapes.size());
        if (!Write(file, QImage(source), shape)) {
            std::fprintf(stderr, "%s: cannot be made\n", qPrintable(file));
            return 1;
        }
    }
    return 0;
}
