export interface Served {
  readonly address: string;
  stop(): Promise<void>;
}

export function serve(folder: string, port: number): Promise<Served>;
