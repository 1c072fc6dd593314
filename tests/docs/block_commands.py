"""What a shell block needs that is not run: every command in it has to exist."""
import os
import re
import shlex
import shutil
import subprocess

SEPARATORS = {"&&", "||", "|", ";", "&", "(", ")", "|&"}
# Words of the shell, and commands that lead to another command.
SHELL_WORDS = {"cd", "export", "set", ".", "[", "test", "echo", "exit", "for", "in", "do", "done", "if", "then",
               "else", "fi", "while", "until", "!", "{", "}", "true", "false", ":", "ulimit"}
PREFIXES = {"sudo", "time", "nice", "env", "do", "then", "else", "!", "if", "while"}
ASSIGNMENT = re.compile(r"^[A-Za-z_][A-Za-z0-9_]*=")


def commands_of(script):
    """The words of a shell script that stand where a command does."""
    found = []
    for line in script.replace("\\\n", " ").splitlines():
        words = shlex.shlex(line, posix=True, punctuation_chars=True)
        words.whitespace_split = True
        expecting = True
        for word in words:
            if word in SEPARATORS:
                expecting = True
            elif expecting and not ASSIGNMENT.match(word) and word not in PREFIXES:
                found.append(word)
                expecting = False
    return found


def is_there(command, project, path):
    if command in SHELL_WORDS or shutil.which(command, path=path):
        return True
    # What a build makes is not there yet.
    return command.startswith("build/") or os.access(os.path.join(project, command), os.X_OK)


def missing_commands(script, project, path):
    """What is wrong with a script that is not run: its syntax, or commands that nobody has."""
    checked = subprocess.run(["bash", "-n"], input=script, text=True, capture_output=True, check=False)
    if checked.returncode != 0:
        return [checked.stderr.strip()]
    return [f"there is no command {command}" for command in commands_of(script) if not is_there(command, project, path)]
