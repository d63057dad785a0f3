"""A server of new versions, on this machine alone."""

import http.server
import ssl
import threading

FILES = "/wp-content/uploads/2020/04/"


class UpdateServer(http.server.ThreadingHTTPServer):
    """Serves files by name, over a secure line if it has a certificate. The system chooses the port."""

    def __init__(self, certificate=None, key=None):
        self.files = {}
        self.asked = []
        super().__init__(("127.0.0.1", 0), Handler)
        self.scheme = "http"
        if certificate:
            self.scheme = "https"
            line = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
            line.load_cert_chain(certificate, key)
            self.socket = line.wrap_socket(self.socket, server_side=True)

    @property
    def address(self):
        return f"{self.scheme}://127.0.0.1:{self.server_address[1]}"

    def __enter__(self):
        self.thread = threading.Thread(target=self.serve_forever)
        self.thread.start()
        return super().__enter__()

    def __exit__(self, *what):
        self.shutdown()
        super().__exit__(*what)
        self.thread.join()


class Handler(http.server.BaseHTTPRequestHandler):
    def do_GET(self):
        self.server.asked.append(self.path)
        body = self.server.files.get(self.path.removeprefix(FILES))
        self.send_response(404 if body is None else 200)
        self.send_header("Content-Length", str(len(body or b"")))
        self.end_headers()
        self.wfile.write(body or b"")

    def log_message(self, *words):
        pass
