#include <QByteArray>

// Qt brings these two along in compiled form, with the std::string of the C++ library that it was built with.
// A program with another one finds them missing; all else of Qt's that names a std::string is in its headers.
std::string QByteArray::toStdString() const
{
    return std::string(data(), static_cast<std::size_t>(size()));
}

QByteArray QByteArray::fromStdString(const std::string& text)
{
    return QByteArray(text.data(), static_cast<qsizetype>(text.size()));
}
