// SPDX-License-Identifier: GPL-3.0-or-later
// A window with one text field, as Java programs have them. Writes what it holds into the file named by its argument.
import java.awt.event.FocusAdapter;
import java.awt.event.FocusEvent;
import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;
import javax.swing.JFrame;
import javax.swing.JTextArea;
import javax.swing.SwingUtilities;
import javax.swing.event.DocumentEvent;
import javax.swing.event.DocumentListener;

public class SwingWindow {
    public static void main(String[] arguments) {
        Path file = Path.of(arguments[0]);
        SwingUtilities.invokeLater(() -> {
            JTextArea area = new JTextArea(20, 60);
            area.getDocument().addDocumentListener(new DocumentListener() {
                public void insertUpdate(DocumentEvent event) {
                    write(file, area.getText());
                }
                public void removeUpdate(DocumentEvent event) {
                    write(file, area.getText());
                }
                public void changedUpdate(DocumentEvent event) {
                    write(file, area.getText());
                }
            });
            JFrame frame = new JFrame("Swing");
            frame.setDefaultCloseOperation(JFrame.EXIT_ON_CLOSE);
            frame.add(area);
            area.addFocusListener(new FocusAdapter() {
                public void focusGained(FocusEvent event) {
                    write(file, area.getText());
                }
            });
            frame.pack();
            frame.setVisible(true);
        });
    }

    private static void write(Path file, String text) {
        try {
            Files.writeString(file, text);
        } catch (IOException failure) {
            throw new IllegalStateException(failure);
        }
    }
}
