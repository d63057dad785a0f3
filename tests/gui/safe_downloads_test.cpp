// Downloads over secure connections, from a server on this machine.
#include <QSslConfiguration>

#include "gui/downloads_bench.h"

namespace orby::test {
namespace {

using testing::IsEmpty;

class DownloadingSafely : public Downloading {
 protected:
  // Trusts only the certificate of the test's server.
  DownloadingSafely() {
    QSslConfiguration trusting = usual_;
    trusting.setCaCertificates({WebServer::CertificateOf("here")});
    QSslConfiguration::setDefaultConfiguration(trusting);
  }
  ~DownloadingSafely() override { QSslConfiguration::setDefaultConfiguration(usual_); }

  WebServer safe{"here"};

 private:
  QSslConfiguration usual_ = QSslConfiguration::defaultConfiguration();
};

TEST_F(DownloadingSafely, FetchesAFileFromATrustedServer) {
  const QByteArray bytes = BytesOf(1'234'567);
  safe.ServeFile("/setup", bytes, "ETag: \"1\"");

  const FetchOutcome ended = Fetch(To(safe.Address("/setup"), true));

  EXPECT_EQ(ended.end, FetchEnd::Done);
  EXPECT_EQ(ended.sha256, Sha256Of(bytes));
  EXPECT_TRUE(Arrived() == bytes);
}

TEST_F(DownloadingSafely, FollowsARedirectToAnotherSecureServer) {
  WebServer other{"here"};
  other.ServeFile("/there", "abc");
  safe.ServeRedirection("/file", QByteArray::fromStdString(other.Address("/there")));

  EXPECT_EQ(EndOf(safe.Address("/file")), FetchEnd::Done);

  EXPECT_EQ(Arrived(), "abc");
}

TEST_F(DownloadingSafely, FollowsNoRedirectToAnUnencryptedConnection) {
  server.ServeFile("/open", "abc");
  safe.ServeRedirection("/file", QByteArray::fromStdString(server.Address("/open")));

  EXPECT_EQ(EndOf(safe.Address("/file")), FetchEnd::Failed);

  EXPECT_THAT(server.Requests(), IsEmpty());
  EXPECT_THAT(FilesThere(), IsEmpty());
}

TEST_F(DownloadingSafely, RefusesAServerWithTheCertificateOfAnother) {
  QSslConfiguration trusting = QSslConfiguration::defaultConfiguration();
  trusting.addCaCertificate(WebServer::CertificateOf("elsewhere"));
  QSslConfiguration::setDefaultConfiguration(trusting);
  WebServer pretender{"elsewhere"};
  pretender.ServeFile("/file", "abc");

  EXPECT_EQ(EndOf(pretender.Address("/file")), FetchEnd::NoConnection);

  EXPECT_THAT(pretender.Requests(), IsEmpty());
  EXPECT_THAT(FilesThere(), IsEmpty());
}

TEST_F(Downloading, RefusesAServerWithAnUntrustedCertificate) {
  WebServer stranger{"here"};
  stranger.ServeFile("/file", "abc");

  EXPECT_EQ(EndOf(stranger.Address("/file")), FetchEnd::NoConnection);

  EXPECT_THAT(stranger.Requests(), IsEmpty());
  EXPECT_THAT(FilesThere(), IsEmpty());
}

}  // namespace
}  // namespace orby::test
