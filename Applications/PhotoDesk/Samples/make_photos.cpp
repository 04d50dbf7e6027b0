// Renders the photographs that PhotoDesk opens at its first start.
//
//     photodesk-make-photos FOLDER [WIDTH]
//
// Three pictures of 3:2, 1800 pixels wide unless told otherwise: a mountain lake at dusk, fruit on a table,
// and a city at the water at night. Nothing in them is random, so every build makes the same files.

#include <QtCore/QDir>
#include <QtCore/QString>
#include <QtGui/QImage>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace {

struct Colour
{
    float r = 0.0f;
    float g = 0.0f;
    float b = 0.0f;
    Colour operator+(const Colour &c) const { return {r + c.r, g + c.g, b + c.b}; }
    Colour operator*(float f) const { return {r * f, g * f, b * f}; }
    Colour operator*(const Colour &c) const { return {r * c.r, g * c.g, b * c.b}; }
};

Colour mix(const Colour &inA, const Colour &inB, float inShare)
{
    const float share = std::clamp(inShare, 0.0f, 1.0f);
    return inA * (1.0f - share) + inB * share;
}

float smooth(float inFrom, float inTo, float inValue)
{
    const float t = std::clamp((inValue - inFrom) / (inTo - inFrom), 0.0f, 1.0f);
    return t * t * (3.0f - 2.0f * t);
}

float hash(int inX, int inY)
{
    auto bits = static_cast<unsigned>(inX) * 374761393u + static_cast<unsigned>(inY) * 668265263u;
    bits = (bits ^ (bits >> 13)) * 1274126177u;
    return static_cast<float>((bits ^ (bits >> 16)) & 0xFFFFFFu) / static_cast<float>(0xFFFFFF);
}

float noise(float inX, float inY)
{
    const int x = static_cast<int>(std::floor(inX));
    const int y = static_cast<int>(std::floor(inY));
    const float u = smooth(0.0f, 1.0f, inX - x);
    const float v = smooth(0.0f, 1.0f, inY - y);
    const float above = hash(x, y) * (1.0f - u) + hash(x + 1, y) * u;
    const float below = hash(x, y + 1) * (1.0f - u) + hash(x + 1, y + 1) * u;
    return above * (1.0f - v) + below * v;
}

float layeredNoise(float inX, float inY, int inLayers)
{
    float sum = 0.0f;
    float weight = 0.5f;
    for (int layer = 0; layer < inLayers; ++layer, weight *= 0.5f) {
        sum += weight * noise(inX, inY);
        inX = inX * 2.03f + 17.0f;
        inY = inY * 2.03f + 31.0f;
    }
    return sum;
}

// Scenes take a point of the picture, x from 0 to 1.5 and y from 0, the top, to 1, and give linear light.

// How high above the horizon a range of mountains stands at x.
float ridge(float inX, int inRange)
{
    const float scale = 1.2f + 0.9f * inRange;
    const float height[] = {0.30f, 0.24f, 0.17f, 0.09f};
    const float sharp =
        1.0f - std::abs(2.0f * layeredNoise(inX * scale + 7.3f * inRange, 3.7f * inRange, 9) - 1.0f);
    return height[inRange] * (0.15f + 0.95f * sharp * sharp);
}

Colour skyAt(float inX, float inHeight)
{
    Colour sky = mix({1.05f, 0.46f, 0.20f}, {0.32f, 0.26f, 0.50f}, inHeight * 2.6f);
    sky = mix(sky, {0.03f, 0.07f, 0.22f}, inHeight * 1.9f - 0.35f);
    const float dx = inX - 0.98f;
    const float dy = inHeight - 0.13f;
    const float distance = std::sqrt(dx * dx + dy * dy);
    sky = sky + Colour{1.3f, 0.75f, 0.30f} * std::exp(-distance * 7.0f);
    const float cloud = layeredNoise(inX * 2.4f + 5.0f, inHeight * 11.0f, 6);
    sky = mix(sky, {1.0f, 0.42f, 0.30f}, smooth(0.50f, 0.80f, cloud) * 0.7f * (1.0f - inHeight));
    return sky;
}

Colour landAt(float inX, float inHeight)
{
    Colour colour = skyAt(inX, inHeight);
    for (int range = 0; range < 4; ++range) {
        const float top = ridge(inX, range);
        if (inHeight > top)
            continue;
        const Colour rock[] = {
            {0.30f, 0.20f, 0.27f}, {0.16f, 0.12f, 0.19f}, {0.07f, 0.065f, 0.10f}, {0.014f, 0.02f, 0.024f}};
        const float detail = layeredNoise(inX * 22.0f, inHeight * 30.0f + range * 9.0f, 5);
        colour = rock[range] * (0.6f + 0.8f * detail);
        if (range < 2) {
            const float snow = smooth(0.55f, 0.85f, inHeight / top + 0.35f * (detail - 0.5f));
            colour = mix(colour, Colour{0.78f, 0.50f, 0.48f} * (range == 0 ? 0.8f : 0.5f), snow * 0.8f);
        }
        // Haze lies in the valleys.
        colour = mix(colour, {0.62f, 0.33f, 0.28f}, (0.55f - 0.13f * range) * std::exp(-inHeight * 13.0f));
    }
    return colour;
}

Colour lake(float inX, float inY)
{
    constexpr float kHorizon = 0.60f;
    if (inY < kHorizon)
        return landAt(inX, kHorizon - inY);
    const float depth = (inY - kHorizon) / (1.0f - kHorizon);
    const float wave = layeredNoise(inX * 9.0f / (0.08f + depth), 42.0f / (0.08f + depth), 4) - 0.45f;
    const Colour mirrored = landAt(inX + wave * 0.05f * depth,
                                   (inY - kHorizon) * 0.92f + 0.003f + std::abs(wave) * 0.07f * depth);
    Colour colour = mix(mirrored * 0.72f, {0.012f, 0.03f, 0.05f}, 0.15f + 0.55f * depth);
    const float stone = layeredNoise(inX * 14.0f, inY * 26.0f, 5);
    const float shore = 0.93f + 0.05f * std::sin(inX * 3.1f) - 0.05f * layeredNoise(inX * 6.0f, 2.0f, 4);
    return inY > shore ? Colour{0.030f, 0.026f, 0.026f} * (0.25f + 2.2f * stone * stone) : colour;
}

struct Vector
{
    float x;
    float y;
    float z;
    Vector operator+(const Vector &v) const { return {x + v.x, y + v.y, z + v.z}; }
    Vector operator-(const Vector &v) const { return {x - v.x, y - v.y, z - v.z}; }
    Vector operator*(float f) const { return {x * f, y * f, z * f}; }
    float dot(const Vector &v) const { return x * v.x + y * v.y + z * v.z; }
    Vector normalized() const { return *this * (1.0f / std::sqrt(dot(*this))); }
};

struct Fruit
{
    Vector centre;
    float radius;
    Colour colour;
    Colour blush;
    float gloss;
};

constexpr Fruit kFruits[] = {
    {{-0.95f, 0.50f, 0.35f}, 0.50f, {0.62f, 0.05f, 0.035f}, {0.75f, 0.42f, 0.08f}, 0.55f},
    {{0.12f, 0.58f, 0.75f}, 0.58f, {0.88f, 0.36f, 0.03f}, {0.90f, 0.45f, 0.06f}, 0.25f},
    {{0.98f, 0.46f, 0.10f}, 0.46f, {0.42f, 0.56f, 0.07f}, {0.72f, 0.62f, 0.16f}, 0.55f},
    {{-0.28f, 0.30f, -0.35f}, 0.30f, {0.13f, 0.02f, 0.11f}, {0.22f, 0.05f, 0.16f}, 0.35f},
    {{0.42f, 0.27f, -0.52f}, 0.27f, {0.90f, 0.70f, 0.08f}, {0.92f, 0.78f, 0.20f}, 0.35f},
    {{1.62f, 0.32f, 0.52f}, 0.32f, {0.16f, 0.025f, 0.13f}, {0.26f, 0.06f, 0.19f}, 0.35f},
};

// Distance along the ray to the fruit, or a negative number.
float meets(const Fruit &inFruit, const Vector &inFrom, const Vector &inDirection)
{
    const Vector way = inFrom - inFruit.centre;
    const float half = way.dot(inDirection);
    const float square = half * half - way.dot(way) + inFruit.radius * inFruit.radius;
    return square < 0.0f ? -1.0f : -half - std::sqrt(square);
}

// Part of a broad lamp that reaches a point, 0 to 1.
float lampAt(const Vector &inPoint, const Vector &inLamp, float inSalt)
{
    constexpr int kSamples = 4;
    int free = 0;
    for (int sample = 0; sample < kSamples * kSamples; ++sample) {
        const float u = (sample % kSamples + hash(static_cast<int>(inSalt), sample)) / kSamples - 0.5f;
        const float v = (sample / kSamples + hash(sample, static_cast<int>(inSalt))) / kSamples - 0.5f;
        const Vector ray = (inLamp + Vector{u * 1.6f, 0.0f, v * 1.6f} - inPoint).normalized();
        free += std::none_of(std::begin(kFruits), std::end(kFruits),
                             [&](const Fruit &fruit) { return meets(fruit, inPoint, ray) > 0.001f; });
    }
    return static_cast<float>(free) / (kSamples * kSamples);
}

Colour table(const Vector &inPoint)
{
    const float plank = std::floor(inPoint.z * 1.4f + 20.0f);
    const float grain = layeredNoise(inPoint.x * 1.1f + plank * 5.0f, inPoint.z * 26.0f, 6);
    const float ring = 0.5f + 0.5f * std::sin(grain * 26.0f + inPoint.x * 1.5f);
    const float gap = std::abs(inPoint.z * 1.4f - std::round(inPoint.z * 1.4f));
    const Colour wood = mix({0.27f, 0.14f, 0.065f}, {0.42f, 0.24f, 0.12f}, ring * 0.6f + grain * 0.5f);
    return wood * (0.35f + 0.65f * smooth(0.0f, 0.012f, gap));
}

Colour fruit(float inX, float inY)
{
    const Vector lamp{-2.6f, 4.2f, -1.6f};
    const Vector eye{0.15f, 1.35f, -4.2f};
    const Vector ray = Vector{(inX - 0.72f) * 0.82f, (0.42f - inY) * 0.82f - 0.16f, 1.0f}.normalized();
    const Fruit *hit = nullptr;
    float nearest = 1e9f;
    for (const Fruit &fruit : kFruits) {
        const float distance = meets(fruit, eye, ray);
        if (distance > 0.0f && distance < nearest) {
            nearest = distance;
            hit = &fruit;
        }
    }
    const float salt = std::floor(inX * 9000.0f) + std::floor(inY * 7000.0f) * 131.0f;
    const float floorDistance = ray.y < -0.001f ? -eye.y / ray.y : 1e9f;
    const Colour lampColour{1.35f, 1.18f, 0.95f};
    if (hit == nullptr && floorDistance > 9.0f) {
        const float glow = std::exp(-3.0f * ((inX - 0.45f) * (inX - 0.45f) + (inY - 0.25f) * (inY - 0.25f)));
        const float cloth = 0.9f + 0.2f * layeredNoise(inX * 5.0f, inY * 5.0f, 5);
        return Colour{0.050f, 0.062f, 0.070f} * (0.45f + 1.7f * glow) * cloth;
    }
    const Vector point = eye + ray * (hit != nullptr ? nearest : floorDistance);
    const Vector normal = hit != nullptr ? (point - hit->centre).normalized() : Vector{0.0f, 1.0f, 0.0f};
    const Vector toLamp = (lamp - point).normalized();
    const float facing = std::max(0.0f, normal.dot(toLamp));
    const float light = facing > 0.0f ? lampAt(point + normal * 0.002f, lamp, salt) : 0.0f;
    Colour base;
    float gloss = 0.07f;
    if (hit != nullptr) {
        const float spots =
            layeredNoise(normal.x * 3.0f + hit->radius * 40.0f, normal.y * 3.0f + normal.z, 5);
        base = mix(hit->colour, hit->blush, smooth(0.35f, 0.75f, spots) * 0.8f);
        const float pore = layeredNoise(normal.x * 46.0f + 9.0f, normal.y * 46.0f + normal.z * 30.0f, 2);
        base = base * (0.85f + 0.3f * pore) * (1.0f - 0.75f * smooth(0.965f, 0.995f, normal.y));
        gloss = hit->gloss;
    } else {
        base = table(point);
    }
    // Contact with the table darkens; the room gives a little light from everywhere.
    float open = 0.55f + 0.45f * normal.y;
    for (const Fruit &fruit : kFruits) {
        if (hit == &fruit)
            continue;
        const Vector way = fruit.centre - point;
        const float distance = std::sqrt(way.dot(way));
        open *= 1.0f - 0.75f * std::clamp(fruit.radius * fruit.radius / (distance * distance), 0.0f, 1.0f) *
                           std::clamp(0.3f + 0.7f * normal.dot(way * (1.0f / distance)), 0.0f, 1.0f);
    }
    const Vector between = (toLamp - ray).normalized();
    const float shine =
        gloss * light * std::pow(std::max(0.0f, normal.dot(between)), hit != nullptr ? 70.0f : 20.0f);
    Colour colour =
        base * (lampColour * (facing * light * 1.15f) + Colour{0.12f, 0.14f, 0.18f} * std::max(open, 0.0f));
    colour = colour + lampColour * shine;
    const float fade = hit == nullptr ? smooth(9.0f, 5.0f, floorDistance) : 1.0f;
    return mix({0.030f, 0.036f, 0.040f}, colour, fade);
}

Colour cityAt(float inX, float inY)
{
    Colour colour = mix({0.010f, 0.014f, 0.035f}, {0.085f, 0.050f, 0.075f}, smooth(0.0f, 0.62f, inY));
    for (int row = 0; row < 3; ++row) {
        const float width = 0.085f + 0.05f * row;
        const float shifted = inX + 0.37f * row;
        const int house = static_cast<int>(std::floor(shifted / width)) + row * 100;
        const float top = 0.20f + 0.09f * row + 0.24f * hash(house, row + 5);
        if (inY < top)
            continue;
        const float haze = 0.5f - 0.2f * row;
        colour = mix(Colour{0.012f, 0.013f, 0.020f} * (0.7f + 0.6f * hash(house, 3)),
                     {0.060f, 0.042f, 0.062f}, haze);
        const float cellX = (shifted / width - std::floor(shifted / width)) * (3.0f + row);
        const float cellY = (inY - top) * (62.0f - 9.0f * row);
        const float inCellX = cellX - std::floor(cellX);
        const float inCellY = cellY - std::floor(cellY);
        const float lit = hash(house * 31 + static_cast<int>(cellX), static_cast<int>(cellY) + row * 57);
        if (lit > 0.58f && inCellX > 0.24f && inCellX < 0.80f && inCellY > 0.25f && inCellY < 0.78f) {
            const Colour warm = mix({1.0f, 0.55f, 0.18f}, {0.65f, 0.80f, 1.0f},
                                    hash(house, static_cast<int>(lit * 900.0f)) > 0.8f);
            colour = colour + warm * ((lit - 0.5f) * (0.5f + 0.45f * row) * (0.7f + 0.3f * inCellY));
        }
    }
    return colour;
}

Colour harbour(float inX, float inY)
{
    constexpr float kKerb = 0.70f;
    Colour colour = cityAt(inX, std::min(inY, kKerb));
    if (inY > kKerb) {
        const float depth = (inY - kKerb) / (1.0f - kKerb);
        const float ripple = layeredNoise(inX * 60.0f, inY * 240.0f, 3) - 0.45f;
        const float puddle = smooth(0.42f, 0.62f, layeredNoise(inX * 4.0f + 3.0f, depth * 7.0f, 4));
        const Colour mirrored =
            cityAt(inX + ripple * 0.02f, kKerb - (inY - kKerb) * 1.3f - std::abs(ripple) * 0.06f);
        colour = mix(Colour{0.014f, 0.013f, 0.018f} * (0.7f + layeredNoise(inX * 200.0f, inY * 200.0f, 2)),
                     mirrored, 0.25f + 0.6f * puddle);
    }
    // Lamps out of focus, and what the water gives back of them.
    for (int lamp = 0; lamp < 26; ++lamp) {
        const float x = 1.5f * hash(lamp, 1);
        const float y = 0.48f + 0.2f * hash(lamp, 2);
        const float radius = 0.010f + 0.026f * hash(lamp, 3) * hash(lamp, 6);
        const Colour light =
            mix({1.0f, 0.50f, 0.14f},
                hash(lamp, 4) > 0.6f ? Colour{1.0f, 0.10f, 0.08f} : Colour{0.55f, 0.8f, 1.0f},
                hash(lamp, 5) > 0.55f);
        const float distance = std::hypot(inX - x, inY - y) / radius;
        colour =
            colour + light * (0.36f * smooth(1.05f, 0.95f, distance) * (0.65f + 0.35f * distance * distance));
        colour = colour + light * (0.10f * std::exp(-distance * 0.55f));
        if (inY > kKerb) {
            const float wobble = 0.012f * (layeredNoise(inX * 30.0f, inY * 130.0f, 2) - 0.4f);
            const float across = (inX - x + wobble) / (radius * 1.1f);
            colour = colour + light * (0.30f * std::exp(-across * across) * std::exp(-(inY - kKerb) * 6.0f));
        }
    }
    return colour;
}

uchar encode(float inLight, float inGrain)
{
    // Bright light rolls off as on film.
    const float mapped = 1.0f - std::exp(-inLight * 1.35f);
    return static_cast<uchar>(std::clamp(255.0f * std::pow(mapped, 1.0f / 2.2f) + inGrain, 0.0f, 255.0f));
}

using Scene = Colour (*)(float inX, float inY);

QImage photograph(Scene inScene, int inWidth)
{
    const int height = inWidth * 2 / 3;
    QImage image(inWidth, height, QImage::Format_RGB32);
    const float pixel = 1.0f / height;
    for (int row = 0; row < height; ++row) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(row));
        for (int column = 0; column < inWidth; ++column) {
            const float x = (column + 0.5f) * pixel;
            const float y = (row + 0.5f) * pixel;
            Colour light = (inScene(x - 0.25f * pixel, y - 0.25f * pixel) +
                            inScene(x + 0.25f * pixel, y + 0.25f * pixel)) *
                           0.5f;
            const float dx = x - 0.75f;
            const float dy = y - 0.5f;
            light = light * (1.0f - 0.35f * (dx * dx + dy * dy)); // the lens is darker in its corners
            const float grain = 5.0f * (hash(column, row) + hash(row + 7, column) - 1.0f);
            line[column] = qRgb(encode(light.r, grain), encode(light.g, grain), encode(light.b, grain));
        }
    }
    return image;
}

struct Photo
{
    const char *name;
    Scene scene;
};
constexpr Photo kPhotos[] = {{"lake", &lake}, {"fruit", &fruit}, {"harbour", &harbour}};

} // namespace

int main(int argc, char **argv)
{
    const int width = argc == 3 ? std::atoi(argv[2]) : 1800;
    if (argc < 2 || argc > 3 || width < 30 || width > 12000 ||
        !QDir().mkpath(QString::fromLocal8Bit(argv[1]))) {
        std::fprintf(stderr,
                     "usage: photodesk-make-photos FOLDER [WIDTH]; the width is 30 to 12000 pixels\n");
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    for (const Photo &photo : kPhotos) {
        const QString path = folder.filePath(QLatin1String(photo.name) + QLatin1String(".jpg"));
        if (!photograph(photo.scene, width).save(path, "JPG", 92)) {
            std::fprintf(stderr, "photodesk-make-photos: %s could not be written\n", qPrintable(path));
            return 2;
        }
    }
    return 0;
}
