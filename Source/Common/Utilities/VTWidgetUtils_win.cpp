#include "Utilities/VTWidgetUtilsNative_p.h"

#include <QtCore/QtGlobal>

#include <cstring>
#include <vector>

#include <qt_windows.h>

namespace {

BITMAPINFO bitmapInfo(int inWidth, int inHeight)
{
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    info.bmiHeader.biWidth = inWidth;
    info.bmiHeader.biHeight = inHeight;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    return info;
}

QImage qt_fromWinHBITMAP(HDC inDeviceContext, HBITMAP inBitmap, int inWidth, int inHeight)
{
    BITMAPINFO info = bitmapInfo(inWidth, -inHeight); // negative: rows from the top down
    info.bmiHeader.biSizeImage = static_cast<DWORD>(inWidth) * static_cast<DWORD>(inHeight) * 4;
    QImage image(inWidth, inHeight, QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) {
        return image;
    }
    std::vector<uchar> bits(info.bmiHeader.biSizeImage);
    if (GetDIBits(inDeviceContext, inBitmap, 0, static_cast<UINT>(inHeight), bits.data(), &info,
                  DIB_RGB_COLORS) == 0) {
        qWarning("qt_fromWinHBITMAP(), failed to get bitmap bits");
        return image;
    }
    const auto rowBytes = static_cast<std::size_t>(image.bytesPerLine());
    for (int y = 0; y < inHeight; ++y) {
        std::memcpy(image.scanLine(y), bits.data() + rowBytes * static_cast<std::size_t>(y), rowBytes);
    }
    return image;
}

QImage drawnIcon(HDC inDeviceContext, HICON inIcon, int inWidth, int inHeight)
{
    const BITMAPINFO info = bitmapInfo(inWidth, inHeight);
    void *bits = nullptr;
    const HBITMAP bitmap = CreateDIBSection(inDeviceContext, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (bitmap == nullptr) {
        return QImage();
    }
    const HGDIOBJ earlier = SelectObject(inDeviceContext, bitmap);
    DrawIconEx(inDeviceContext, 0, 0, inIcon, inWidth, inHeight, 0, nullptr, DI_NORMAL);
    const QImage image = qt_fromWinHBITMAP(inDeviceContext, bitmap, inWidth, inHeight);
    SelectObject(inDeviceContext, earlier);
    DeleteObject(bitmap);
    return image;
}

using SetWindowAttribute = HRESULT(WINAPI *)(HWND, DWORD, LPCVOID, DWORD);

// Null where the system has no desktop composition.
SetWindowAttribute setWindowAttribute()
{
    static const auto sFunction = [] {
        const HMODULE library = LoadLibraryExW(L"dwmapi.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
        return library != nullptr ? reinterpret_cast<SetWindowAttribute>(reinterpret_cast<void *>(
                                        GetProcAddress(library, "DwmSetWindowAttribute")))
                                  : nullptr;
    }();
    return sFunction;
}

} // namespace

QImage VTWidgetUtilsNative::appIcon(int inPixels)
{
    const auto icon = static_cast<HICON>(
        LoadImageW(GetModuleHandleW(nullptr), L"IDI_ICON1", IMAGE_ICON, inPixels, inPixels, 0));
    if (icon == nullptr) {
        return QImage();
    }
    const HDC screen = GetDC(nullptr);
    const HDC deviceContext = CreateCompatibleDC(screen);
    ReleaseDC(nullptr, screen);

    QImage image;
    ICONINFO info = {};
    if (GetIconInfo(icon, &info)) {
        // The hot spot of an icon is its middle.
        image = drawnIcon(deviceContext, icon, static_cast<int>(info.xHotspot) * 2,
                          static_cast<int>(info.yHotspot) * 2);
        DeleteObject(info.hbmMask);
        DeleteObject(info.hbmColor);
    }
    DeleteDC(deviceContext);
    DestroyIcon(icon);
    return image;
}

void VTWidgetUtilsNative::addBorder(WId inWindow)
{
    const auto handle = reinterpret_cast<HWND>(inWindow);
    SetWindowLongW(handle, GWL_STYLE, GetWindowLongW(handle, GWL_STYLE) | WS_BORDER);
}

void VTWidgetUtilsNative::setFrameDark(WId inWindow, bool inDark)
{
    // DWMWA_USE_IMMERSIVE_DARK_MODE, which headers of older systems lack, and its number before Windows 10
    // 2004.
    constexpr DWORD kDarkMode = 20;
    constexpr DWORD kEarlierDarkMode = 19;
    const SetWindowAttribute set = setWindowAttribute();
    if (set == nullptr) {
        return;
    }
    const auto handle = reinterpret_cast<HWND>(inWindow);
    const BOOL dark = inDark ? TRUE : FALSE;
    if (FAILED(set(handle, kDarkMode, &dark, sizeof dark))) {
        set(handle, kEarlierDarkMode, &dark, sizeof dark);
    }
}
