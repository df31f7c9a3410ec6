// A client that draws with GL of its own between our calls: which of its state the operations take
// as it is, which they need untouched, and what they leave behind.

#include "support/SurfaceFixture.h"

#include <map>
#include <sstream>

namespace {

constexpr tagZoRectInfo everything = {0, 0, 1000, 1000}; // of any target
constexpr tagZoRectInfo part = {8, 4, 32, 24};
constexpr tagZoRectInfo other = {20, 10, 32, 24};
constexpr tagZoRectInfo pen = {2, 40, 0, 0};
constexpr tagZoColorRGBA color = {200, 100, 50, 128};

struct Client {
    ZoGLDrawSurface* surface = nullptr;
    unsigned int left = ZO_NO_HANDLE;
    unsigned int right = ZO_NO_HANDLE;
    unsigned int fresh = ZO_NO_HANDLE;
};

int DrawText(Client& client, unsigned int size) {
    tagZoTextInfo info = {};
    info.text = u"AMA";
    info.length = 3;
    info.color = color;
    info.fontSize = size;
    return client.surface->ZoDrawText(client.left, &info, &pen);
}

int Blit(Client& client, unsigned int to) {
    const tagZoBlitInfo info = {client.left, to, part, other};
    return client.surface->ZoBlit(&info);
}

// Rows of 12 bytes, which an alignment of 8 takes for 16: there are bytes enough for that.
int DisplayBitmap(Client& client) {
    unsigned char pixels[3 * 16];
    for (size_t i = 0; i < sizeof(pixels); ++i) {
        pixels[i] = static_cast<unsigned char>(255 - 5 * i);
    }
    const tagZoBitmapInfo info = {pixels, ZO_FORMAT_RGBA8888, 0, 0, 3, 3, part};
    return client.surface->ZoDisplayBitmap(&info);
}

#define DRAWN "framebuffer viewport program array-buffer attribute-0 "
#define BLENDED "blend blend-func active-texture "

const struct Operation {
    const char* name;
    const char* changes; ///< the state that is another afterwards
    int (*run)(Client&);
    unsigned int (*result)(Client&) = [](Client& c) { return c.left; }; ///< where it can be seen
} operations[] = {
    {"create", "framebuffer viewport clear-color active-texture texture-0",
     [](Client& c) { return c.surface->ZoCreateGLFBO(&c.fresh, 16, 16, ZO_FORMAT_RGBA8888); },
     [](Client& c) { return c.fresh; }},
    {"fill", DRAWN, [](Client& c) { return c.surface->ZoDrawRect(c.left, &part, &color); }},
    {"blit", DRAWN "active-texture texture-0", [](Client& c) { return Blit(c, c.right); },
     [](Client& c) { return c.right; }},
    {"blit-within", DRAWN "active-texture texture-0", [](Client& c) { return Blit(c, c.left); }},
    {"text", DRAWN BLENDED "texture-1", [](Client& c) { return DrawText(c, 40); }},
    {"styled-text", DRAWN BLENDED "texture-2 unpack-alignment",
     [](Client& c) { return DrawText(c, 30); }},
    {"bitmap", DRAWN BLENDED "clear-color texture-0 unpack-alignment", DisplayBitmap,
     [](Client&) { return ZO_WINDOW_HANDLE; }},
    {"present", DRAWN BLENDED "clear-color texture-0",
     [](Client& c) { return c.surface->ZoDisplayFBO(c.left, &part, &other); },
     [](Client&) { return ZO_WINDOW_HANDLE; }},
    {"load", "active-texture texture-1 unpack-alignment",
     [](Client& c) { return c.surface->ZoLoadFont(ZOGLES_TEST_FONT, 40); },
     [](Client& c) {
         EXPECT_EQ(DrawText(c, 40), ZO_SUCCESS);
         return c.left;
     }},
    {"refresh", "", [](Client& c) { return c.surface->ZoRefreshOnSrceen(); }},
};

// A piece of state as a stranger may leave it, which none of our operations sets.
const struct Poison {
    const char* name;
    std::string disturbs; ///< the operations that need it untouched
    void (*set)();
    void (*restore)();
    bool isHarmful = false; ///< where it disturbs, the driver may read anything
} poisons[] = {
    {"blending", "fill blit blit-within ",
     [] { glEnable(GL_BLEND), glBlendFunc(GL_ZERO, GL_ZERO); }, [] { glDisable(GL_BLEND); }},
    {"blend equation", "text styled-text bitmap present ",
     [] { glBlendEquation(GL_FUNC_REVERSE_SUBTRACT); }, [] { glBlendEquation(GL_FUNC_ADD); }},
    {"blend color", "", [] { glBlendColor(1, 0, 1, 0); }, [] { glBlendColor(0, 0, 0, 0); }},
    {"color mask", "create fill blit blit-within text styled-text bitmap present ",
     [] { glColorMask(0, 0, 0, 0); }, [] { glColorMask(1, 1, 1, 1); }},
    {"scissor test", "create fill blit blit-within text styled-text bitmap present ",
     [] { glEnable(GL_SCISSOR_TEST), glScissor(0, 0, 1, 1); }, [] { glDisable(GL_SCISSOR_TEST); }},
    {"face culling", "fill blit blit-within text styled-text bitmap present ",
     [] { glEnable(GL_CULL_FACE), glCullFace(GL_FRONT_AND_BACK); },
     [] { glDisable(GL_CULL_FACE), glCullFace(GL_BACK); }},
    {"front face", "", [] { glFrontFace(GL_CW); }, [] { glFrontFace(GL_CCW); }},
    {"unpack alignment of 8", "bitmap ", [] { glPixelStorei(GL_UNPACK_ALIGNMENT, 8); },
     [] { glPixelStorei(GL_UNPACK_ALIGNMENT, 4); }},
    {"pack alignment", "", [] { glPixelStorei(GL_PACK_ALIGNMENT, 8); },
     [] { glPixelStorei(GL_PACK_ALIGNMENT, 4); }},
    {"depth mask", "", [] { glDepthMask(0); }, [] { glDepthMask(1); }},
    {"depth range", "", [] { glDepthRangef(1, 0); }, [] { glDepthRangef(0, 1); }},
    {"depth and stencil clear values", "", [] { glClearDepthf(0), glClearStencil(9); },
     [] { glClearDepthf(1), glClearStencil(0); }},
    {"dithering", "", [] { glDisable(GL_DITHER); }, [] { glEnable(GL_DITHER); }},
    {"polygon offset", "", [] { glEnable(GL_POLYGON_OFFSET_FILL), glPolygonOffset(9, 9); },
     [] { glDisable(GL_POLYGON_OFFSET_FILL), glPolygonOffset(0, 0); }},
    {"coverage of samples", "",
     [] { glEnable(GL_SAMPLE_ALPHA_TO_COVERAGE), glEnable(GL_SAMPLE_COVERAGE); },
     [] { glDisable(GL_SAMPLE_ALPHA_TO_COVERAGE), glDisable(GL_SAMPLE_COVERAGE); }},
    {"line width", "", [] { glLineWidth(3); }, [] { glLineWidth(1); }},
    {"element buffer", "blit blit-within bitmap present ",
     [] { glBindBuffer(GL_ELEMENT_ARRAY_BUFFER, 1000); },
     [] {
         constexpr GLuint buffer = 1000;
         glDeleteBuffers(1, &buffer);
     },
     true},
    {"attribute array", "fill blit blit-within text styled-text bitmap present ",
     [] { glEnableVertexAttribArray(3); }, [] { glDisableVertexAttribArray(3); }, true},
    {"attribute value", "", [] { glVertexAttrib4f(0, 9, 9, 9, 9); },
     [] { glVertexAttrib4f(0, 0, 0, 0, 1); }},
};

using State = std::map<std::string, std::string>;

constexpr GLuint textureUnits = 4;

// The state of the context that the operations could change, by name.
State ReadState() {
    State state;
    const auto read = [&state](const std::string& name, std::initializer_list<GLenum> whats) {
        std::ostringstream text;
        for (const GLenum what : whats) {
            GLfloat values[4] = {};
            glGetFloatv(what, values);
            text << values[0] << ' ' << values[1] << ' ' << values[2] << ' ' << values[3] << ' ';
        }
        state[name] = text.str();
    };
    read("array-buffer", {GL_ARRAY_BUFFER_BINDING});
    read("element-buffer", {GL_ELEMENT_ARRAY_BUFFER_BINDING});
    read("framebuffer", {GL_FRAMEBUFFER_BINDING});
    read("renderbuffer", {GL_RENDERBUFFER_BINDING});
    read("program", {GL_CURRENT_PROGRAM});
    read("viewport", {GL_VIEWPORT});
    read("scissor", {GL_SCISSOR_TEST, GL_SCISSOR_BOX});
    read("blend", {GL_BLEND});
    read("blend-func",
         {GL_BLEND_SRC_RGB, GL_BLEND_DST_RGB, GL_BLEND_SRC_ALPHA, GL_BLEND_DST_ALPHA});
    read("blend-equation", {GL_BLEND_EQUATION_RGB, GL_BLEND_EQUATION_ALPHA, GL_BLEND_COLOR});
    read("clear-color", {GL_COLOR_CLEAR_VALUE});
    read("clear-others", {GL_DEPTH_CLEAR_VALUE, GL_STENCIL_CLEAR_VALUE});
    read("masks", {GL_COLOR_WRITEMASK, GL_DEPTH_WRITEMASK, GL_STENCIL_WRITEMASK});
    read("tests", {GL_DEPTH_TEST, GL_DEPTH_FUNC, GL_STENCIL_TEST, GL_STENCIL_FUNC});
    read("culling", {GL_CULL_FACE, GL_CULL_FACE_MODE, GL_FRONT_FACE});
    read("dithering", {GL_DITHER, GL_POLYGON_OFFSET_FILL, GL_SAMPLE_COVERAGE});
    read("unpack-alignment", {GL_UNPACK_ALIGNMENT});
    read("pack-alignment", {GL_PACK_ALIGNMENT});
    read("active-texture", {GL_ACTIVE_TEXTURE});
    GLint activeTexture = 0;
    glGetIntegerv(GL_ACTIVE_TEXTURE, &activeTexture);
    for (GLuint unit = 0; unit < textureUnits; ++unit) {
        glActiveTexture(GL_TEXTURE0 + unit);
        read("texture-" + std::to_string(unit), {GL_TEXTURE_BINDING_2D});
    }
    glActiveTexture(static_cast<GLenum>(activeTexture));
    for (GLuint attribute = 0; attribute < 4; ++attribute) {
        GLint values[2] = {};
        glGetVertexAttribiv(attribute, GL_VERTEX_ATTRIB_ARRAY_ENABLED, &values[0]);
        glGetVertexAttribiv(attribute, GL_VERTEX_ATTRIB_ARRAY_BUFFER_BINDING, &values[1]);
        state["attribute-" + std::to_string(attribute)] =
            std::to_string(values[0]) + ' ' + std::to_string(values[1]);
    }
    return state;
}

class ForeignStateGLTest : public SurfaceFixture {
protected:
    void SetUp() override {
        SurfaceFixture::SetUp();
        harness::Current().firstChar = [](FT_Face face, FT_UInt* index) -> FT_ULong {
            *index = FT_Get_Char_Index(face, 'A');
            return 'A';
        };
        harness::Current().nextChar = [](FT_Face face, FT_ULong code, FT_UInt* index) -> FT_ULong {
            *index = code < 'M' ? FT_Get_Char_Index(face, 'M') : 0;
            return 'M';
        };
        Bind();
        client.surface = surface.get();
        ASSERT_EQ(surface->ZoLoadFont(ZOGLES_TEST_FONT, 40), ZO_SUCCESS);
        ASSERT_EQ(surface->Init(0x3F), ZO_SUCCESS);
        client.left = CreateBuffer(64, 48);
        client.right = CreateBuffer(64, 48);
    }

    // Brings everything that is looked at to what it was at the start.
    void Prepare() {
        constexpr tagZoColorRGBA ground = {60, 70, 80, 90};
        constexpr tagZoColorRGBA mark = {250, 20, 10, 240};
        for (const unsigned int handle : {client.left, client.right, ZO_WINDOW_HANDLE}) {
            ASSERT_EQ(surface->ZoDrawRect(handle, &everything, &ground), ZO_SUCCESS);
            ASSERT_EQ(surface->ZoDrawRect(handle, &other, &mark), ZO_SUCCESS);
        }
        if (client.fresh != ZO_NO_HANDLE) {
            ASSERT_EQ(surface->ZoDestoryGLFBO(client.fresh), ZO_SUCCESS);
            client.fresh = ZO_NO_HANDLE;
        }
    }

    Image Run(
        const Operation& operation, const std::function<void()>& before = [] {},
        const std::function<void()>& after = [] {}) {
        Prepare();
        before();
        EXPECT_EQ(operation.run(client), ZO_SUCCESS);
        after();
        return Read(operation.result(client));
    }

    Client client;
};

// A stranger's objects, bound wherever an operation binds one of its own.
class ForeignObjects {
public:
    ForeignObjects() {
        glGenTextures(1, &texture);
        glGenFramebuffers(1, &framebuffer);
        glGenBuffers(1, &buffer);
        program = ShaderProgram().CreateProgram("void main() { gl_Position = vec4(0); }\n",
                                                "void main() { gl_FragColor = vec4(0); }\n");
    }
    ~ForeignObjects() {
        glDeleteTextures(1, &texture);
        glDeleteFramebuffers(1, &framebuffer);
        glDeleteBuffers(1, &buffer);
        ShaderProgram().ReleaseProgram(program);
    }
    ForeignObjects(const ForeignObjects&) = delete;
    ForeignObjects& operator=(const ForeignObjects&) = delete;

    // Sets what operations set themselves to what none of them sets it to.
    void Use() const {
        glUseProgram(program);
        glBindBuffer(GL_ARRAY_BUFFER, buffer);
        glVertexAttribPointer(0, 2, GL_BYTE, GL_TRUE, 2, nullptr);
        glEnableVertexAttribArray(0);
        for (GLuint unit = 0; unit < textureUnits; ++unit) {
            glActiveTexture(GL_TEXTURE0 + unit);
            glBindTexture(GL_TEXTURE_2D, texture);
        }
        glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, 8, 8, 0, GL_RGBA, GL_UNSIGNED_BYTE, nullptr);
        glBindFramebuffer(GL_FRAMEBUFFER, framebuffer);
        glFramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, texture, 0);
        glViewport(1, 2, 3, 4);
        glClearColor(0.5f, 0.5f, 0.5f, 0.5f);
        glPixelStorei(GL_UNPACK_ALIGNMENT, 2);
        glEnable(GL_BLEND); // with a function that replaces, as without blending
        glBlendFunc(GL_ONE, GL_ZERO);
    }

    // Puts back what the library's contract says that it starts from.
    static void PutBack() {
        glDisable(GL_BLEND);
        glDisableVertexAttribArray(0);
        glBindBuffer(GL_ARRAY_BUFFER, 0);
        glBindFramebuffer(GL_FRAMEBUFFER, 0);
        glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
    }

private:
    GLuint texture = 0;
    GLuint framebuffer = 0;
    GLuint buffer = 0;
    GLuint program = 0;
};

std::set<std::string> Words(const std::string& text) {
    std::istringstream stream(text);
    return {std::istream_iterator<std::string>(stream), {}};
}

} // namespace

TEST_F(ForeignStateGLTest, EachPieceOfStateDisturbsNoMoreThanItIsSaidTo) {
    for (const Operation& operation : operations) {
        const Image undisturbed = Run(operation);
        for (const Poison& poison : poisons) {
            const bool isDisturbed = Words(poison.disturbs).count(operation.name) != 0;
            // What a new buffer holds that is not cleared is the driver's choice, nothing included.
            const bool isUnknown = poison.isHarmful || client.fresh != ZO_NO_HANDLE;
            if (isDisturbed && isUnknown) {
                continue;
            }
            const Image image = Run(operation, poison.set, poison.restore);
            EXPECT_EQ(image.pixels != undisturbed.pixels, isDisturbed)
                << poison.name << " before " << operation.name;
        }
    }
}

TEST_F(ForeignStateGLTest, OperationsChangeNoMoreThanTheyAreSaidTo) {
    const ForeignObjects objects;
    for (const Operation& operation : operations) {
        SCOPED_TRACE(operation.name);
        const Image undisturbed = Run(operation);
        State before;
        State after;
        const Image image = Run(
            operation,
            [&] {
                objects.Use();
                before = ReadState();
            },
            [&] {
                after = ReadState();
                ForeignObjects::PutBack();
            });
        EXPECT_TRUE(image.pixels == undisturbed.pixels);
        std::set<std::string> changed;
        for (const auto& [name, value] : after) {
            if (value != before[name]) {
                changed.insert(name);
            }
        }
        EXPECT_EQ(changed, Words(operation.changes));
    }
}
